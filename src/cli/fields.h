#pragma once
// The main form's fields by name: how each prints and how `set` writes it.
#include "cli/lexer.h"
#include "editor/frm_main.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tavrin::cli {

using Index = std::vector<int64_t>;

struct Field {
    std::string name;
    int rank = 0; // 0: a single value; else how many indices an element takes
    // The value (of the element at index) as printed after "NAME=".
    std::function<std::string(FrmMain&, const Index&)> print;
    // Writes the value a token gives; empty when the field can't be set that way.
    std::function<void(FrmMain&, const Index&, const Token&)> set;
    // Arrays: "LOWER..UPPER" (one range per dimension, comma separated) or "unallocated".
    std::function<std::string(FrmMain&)> bounds;
};

// nullptr when the main form has no field of that name.
const Field* findField(const std::string& name);
const std::vector<Field>& fields();

} // namespace tavrin::cli

namespace tavrin::cli {

class Args;

// The indices of an element of f, as many as its rank, then the end of the line
// unless more is expected (set's value).
Index readIndex(const Field& f, Args& a);
// "Skin_Grid(57)", "Work_Buf(0,10,20)", or the bare name of a single value.
std::string elementName(const Field& f, const Index& i);

} // namespace tavrin::cli
