#pragma once
// The command surface of the main window as data: every menu item, control position,
// caption and tool tip stands once here. The editor's constructor applies the tables to
// its controls, and the Qt layer builds its widgets from the controls so made.
#include "editor/frm_main.h"

#include <vector>

namespace tavrin::shell {

using Handler = void (FrmMain::*)();

struct MenuRow {
    platform::MenuItem FrmMain::*item;
    int level;            // 0: a title of the bar, 1: its item, 2: an item of a submenu
    const char* caption;  // "-" for a separator
    const char* shortcut; // "Ctrl+Z", or ""
    bool checked;
    bool visible;
    bool enabled;
    Handler handler; // nullptr: the item does nothing (yet)
};

// The menu bar, in order, and the popup menu Pop (hidden from the bar) after it.
const std::vector<MenuRow>& menuTable();

struct ControlRow {
    const char* name;
    const char* container;           // "" for the form itself
    double left, top, width, height; // twips
    const char* caption;
    const char* toolTip;
    bool visible;
    Handler click;
};

// The controls of the main window at their design positions, containers first.
const std::vector<ControlRow>& controlTable();

struct ToolbarRow {
    const char* key; // "" for a separator
    const char* toolTip;
};

// tbToolBar's buttons, positions 1 to 15.
const std::vector<ToolbarRow>& toolbarTable();

struct PictureRow {
    const char* control; // a button, or a key of the tool bar as "tbToolBar.Key"
    const char* picture; // the name of its image
};

// The pictures on the buttons that show one: the tool bar, the filter bar, tbToolBar.
const std::vector<PictureRow>& pictureTable();

} // namespace tavrin::shell
