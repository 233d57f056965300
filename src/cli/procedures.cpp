// The procedure table, made from the form's own list of its procedures without
// arguments; an event handler with arguments gets a line here that supplies them. The
// form's private helpers are no procedures a user knows: not here.
#include "cli/procedures.h"

#include <vector>

namespace tavrin::cli {

namespace {

const std::vector<Procedure>& procedures() {
    static const std::vector<Procedure> table = {
#define TAVRIN_PROCEDURE(name) Procedure{#name, &FrmMain::name},
#include "editor/frm_main_procedures.def"
#undef TAVRIN_PROCEDURE
        // Cancel is the handler's own business here: nobody closes a window.
        Procedure{"Form_Unload",
                  [](FrmMain& f) {
                      int16_t cancel = 0;
                      f.Form_Unload(cancel);
                  }},
    };
    return table;
}

} // namespace

const Procedure* findProcedure(const std::string& name) {
    for (const Procedure& p : procedures())
        if (name == p.name) return &p;
    return nullptr;
}

} // namespace tavrin::cli
