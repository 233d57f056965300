#include "cli/args.h"

#include "cli/script_error.h"

namespace tavrin::cli {

const Token& Args::next(const char* what) {
    if (atEnd()) throw ScriptError(std::string("missing ") + what);
    return tokens_[pos_++];
}

std::string Args::word(const char* what, std::initializer_list<const char*> choices) {
    const Token& t = next(what);
    if (t.quoted) throw ScriptError(std::string(what) + " must not be quoted: \"" + t.text + "\"");
    if (choices.size() == 0) return t.text;
    std::string list;
    for (const char* c : choices) {
        if (t.text == c) return t.text;
        list += list.empty() ? c : std::string(", ") + c;
    }
    throw ScriptError(std::string(what) + " must be one of " + list + ", not " + t.text);
}

int64_t Args::integer(const char* what, int64_t min, int64_t max) {
    const Token& t = next(what);
    auto v = parseInteger(t);
    if (!v) throw ScriptError(std::string(what) + " must be a whole number, not " + t.text);
    if (*v < min || *v > max)
        throw ScriptError(std::string(what) + " " + t.text + " is outside " + std::to_string(min) +
                          ".." + std::to_string(max));
    return *v;
}

double Args::number(const char* what) {
    const Token& t = next(what);
    auto v = parseNumber(t);
    if (!v) throw ScriptError(std::string(what) + " must be a number, not " + t.text);
    return *v;
}

void Args::end() const {
    if (!atEnd()) throw ScriptError("unexpected " + tokens_[pos_].text);
}

} // namespace tavrin::cli
