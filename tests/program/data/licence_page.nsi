; An installer that shows a licence and installs nothing: a text of another kind of program.
Target amd64-unicode
Name "Licence page"
OutFile "${OUT}"
RequestExecutionLevel user
LicenseData "${TEXT}"
Page license
Page instfiles
Section
SectionEnd
