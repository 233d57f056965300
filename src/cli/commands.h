#pragma once
// The script's commands by name.
#include "cli/args.h"
#include "cli/session.h"

#include <string>

namespace tavrin::cli {

using CommandFn = void (*)(Session&, Args&);

// nullptr when there is no such command.
CommandFn findCommand(const std::string& name);

// answers.cpp
void answerCommand(Session& s, Args& a);
// actions.cpp
void clickCommand(Session& s, Args& a);
void callCommand(Session& s, Args& a);
void typeCommand(Session& s, Args& a);
void keyCommand(Session& s, Args& a);
void sliderCommand(Session& s, Args& a);
void setCommand(Session& s, Args& a);
// pointer_commands.cpp
void mouseCommand(Session& s, Args& a);
void paletteCommand(Session& s, Args& a);
void resizeCommand(Session& s, Args& a);
void gripCommand(Session& s, Args& a);
void dropCommand(Session& s, Args& a);
// inspect.cpp
void printCommand(Session& s, Args& a);
void boundsCommand(Session& s, Args& a);
// dumps.cpp
void dumpCommand(Session& s, Args& a);
// preview_command.cpp
void previewCommand(Session& s, Args& a);

} // namespace tavrin::cli
