// Checks what the linker wrote into the executables of the package: the libraries that are loaded
// with them, what they call in them, and the version of Windows that they name.
//
//   node scripts/check_executable.mjs build/windows/bin/lexilo.exe build/windows/bin/capturewhy.exe
import { execFileSync } from 'node:child_process';

// Where a library of the import table is looked for in the program's own folder first, anyone who can
// put a file there is run as the program ("Dynamic-link library search order"). That is not done for
// the system's known ones (KnownDLLs in the registry), nor for the one that the manifest names.
const loadedFromTheSystem = new Set(['advapi32.dll', 'comdlg32.dll', 'gdi32.dll', 'imm32.dll',
  'kernel32.dll', 'msvcrt.dll', 'ole32.dll', 'oleaut32.dll', 'rpcrt4.dll', 'shcore.dll', 'shell32.dll',
  'shlwapi.dll', 'user32.dll', 'comctl32.dll']);
const failures = [];

function check(file) {
  const dump = execFileSync('x86_64-w64-mingw32-objdump', ['-p', file],
    { encoding: 'utf8', maxBuffer: 64 * 1024 * 1024 });
  const fail = (what) => failures.push(`${file}: ${what}`);

  const libraries = [...dump.matchAll(/^\s*DLL Name: (.*)$/gm)].map((match) => match[1].trim());
  if (libraries.length === 0) fail('objdump names no library');
  for (const library of libraries) {
    if (!loadedFromTheSystem.has(library.toLowerCase())) {
      fail(`${library} would be loaded from the program's folder: load it with systemFunction()`);
    }
  }

  // No test sees that it is missing: Wine registers the classes of all common controls by itself.
  if (libraries.some((library) => /^comctl32/i.test(library)) &&
      !/\bInitCommonControlsEx\b/.test(dump)) {
    fail('InitCommonControlsEx is not called');
  }

  // Below 6.0 the window manager gives windows frames of other measures than those that it draws; the
  // number is also what an older Windows names when it refuses the program.
  const versionOf = (part) => ['Major', 'Minor'].map((half) =>
    dump.match(new RegExp(`^${half}${part}Version\\s+(\\d+)$`, 'm'))?.[1]).join('.');
  for (const part of ['OSystem', 'Subsystem']) {
    if (versionOf(part) !== '10.0') fail(`its ${part}Version is ${versionOf(part)}, not 10.0`);
  }
}

const files = process.argv.slice(2);
if (files.length === 0) failures.push('no executable is named');
files.forEach(check);
if (failures.length > 0) {
  console.error(failures.map((failure) => `${failure}.`).join('\n'));
  process.exit(1);
}
