// The command table: a new command is one line here and its function.
#include "cli/commands.h"

#include <vector>

namespace tavrin::cli {

namespace {

struct Command {
    const char* name;
    CommandFn run;
};

const std::vector<Command>& commands() {
    static const std::vector<Command> table = {
        {"answer", answerCommand}, {"click", clickCommand},     {"call", callCommand},
        {"mouse", mouseCommand},   {"palette", paletteCommand}, {"type", typeCommand},
        {"key", keyCommand},       {"slider", sliderCommand},   {"resize", resizeCommand},
        {"grip", gripCommand},     {"drop", dropCommand},       {"set", setCommand},
        {"print", printCommand},   {"bounds", boundsCommand},   {"dump", dumpCommand},
    };
    return table;
}

// Commands added to the language since (the "Additions" of docs/tavrin-script.md).
const std::vector<Command>& additions() {
    static const std::vector<Command> table = {
        {"preview", previewCommand},
    };
    return table;
}

} // namespace

CommandFn findCommand(const std::string& name) {
    for (const auto* table : {&commands(), &additions()})
        for (const Command& c : *table)
            if (name == c.name) return c.run;
    return nullptr;
}

} // namespace tavrin::cli
