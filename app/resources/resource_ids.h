#pragma once

// Numbers of the resources in lexilo.rc. They are defines, against the habit of the other headers,
// because the resource compiler knows nothing but the preprocessor.

/// The program's own mark. The lowest number of all, so that Explorer and the taskbar take it.
#define IDI_APP 1

/// Pictures of the toolbar's buttons.
#define IDI_QUICK_LOOKUP 101
#define IDI_MULTI_QUERY 102
#define IDI_DICT_SETTINGS 103
#define IDI_CAPTURE_ON 104
#define IDI_CAPTURE_OFF 105
#define IDI_HELP_PAGE 106
#define IDI_MENU_ARROW 107

/// A dictionary's node in a tree.
#define IDI_DICTIONARY 108
