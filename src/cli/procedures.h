#pragma once
// The main form's procedures that `call` may run by name.
#include "editor/frm_main.h"

#include <functional>
#include <string>

namespace tavrin::cli {

struct Procedure {
    const char* name;
    std::function<void(FrmMain&)> run;
};

// nullptr when the main form has no such procedure.
const Procedure* findProcedure(const std::string& name);

} // namespace tavrin::cli
