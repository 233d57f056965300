#include "cli/field_values.h"

#include "cli/script_error.h"

#include <limits>

namespace tavrin::cli {

namespace {

std::string n(int64_t v) { return std::to_string(v); }

bool isHex(const Token& t) {
    return t.text.size() > 2 && t.text[0] == '0' && (t.text[1] == 'x' || t.text[1] == 'X');
}

// A whole number that fits T; hex may use T's whole width.
template <class T> T wholeNumber(const Token& t) {
    auto v = parseInteger(t);
    if (!v) throw ScriptError("a whole number is needed, not " + t.text);
    using Limits = std::numeric_limits<T>;
    using U = std::make_unsigned_t<T>;
    if (isHex(t) && *v <= static_cast<int64_t>(std::numeric_limits<U>::max()))
        return static_cast<T>(static_cast<U>(*v));
    if (*v < static_cast<int64_t>(Limits::min()) || *v > static_cast<int64_t>(Limits::max()))
        throw ScriptError(t.text + " doesn't fit in the field (" + n(Limits::min()) + ".." +
                          n(Limits::max()) + ")");
    return static_cast<T>(*v);
}

} // namespace

std::string valueText(int16_t v) { return n(v); }
std::string valueText(int32_t v) { return n(v); }
std::string valueText(uint8_t v) { return n(v); }
std::string valueText(bool v) { return v ? "True" : "False"; }
std::string valueText(const std::string& v) { return vb::quote(v); }
std::string valueText(const vb::Variant& v) { return v.repr(); }

std::string valueText(const PalRecord& r) {
    return "Red=" + n(r.Red) + " Green=" + n(r.Green) + " Blue=" + n(r.Blue) +
           " Index=" + n(r.Index) + " Cell_X=" + n(r.Cell_X) + " Cell_Y=" + n(r.Cell_Y);
}
std::string valueText(const UVRecord& r) { return "S=" + n(r.S) + " T=" + n(r.T); }
std::string valueText(const TriRecord& r) {
    return "A=" + n(r.A) + " B=" + n(r.B) + " C=" + n(r.C);
}
std::string valueText(const TextPixel& r) { return "X=" + n(r.X) + " Y=" + n(r.Y); }
std::string valueText(const MaskRecord& r) {
    return "Mask_X=" + n(r.Mask_X) + " Mask_Y=" + n(r.Mask_Y) + " Mask_Red=" + n(r.Mask_Red) +
           " Mask_Green=" + n(r.Mask_Green) + " Mask_Blue=" + n(r.Mask_Blue);
}

void assign(int16_t& field, const Token& t) { field = wholeNumber<int16_t>(t); }
void assign(int32_t& field, const Token& t) { field = wholeNumber<int32_t>(t); }
void assign(uint8_t& field, const Token& t) { field = wholeNumber<uint8_t>(t); }

void assign(bool& field, const Token& t) {
    if (t.quoted || (t.text != "True" && t.text != "False"))
        throw ScriptError("True or False is needed, not " + t.text);
    field = t.text == "True";
}

void assign(std::string& field, const Token& t) { field = t.text; }

void assign(vb::Variant& field, const Token& t) {
    if (t.quoted) {
        field = vb::Variant(t.text);
    } else if (t.text == "Empty") {
        field = vb::Variant();
    } else if (t.text == "True" || t.text == "False") {
        field = vb::Variant(t.text == "True");
    } else if (auto whole = parseInteger(t)) {
        // Hex is a packed colour or a bit pattern: 32 bits, 0xFFFFFFFF being -1.
        if (isHex(t))
            field = vb::Variant(static_cast<int>(static_cast<uint32_t>(*whole)));
        else if (*whole >= INT32_MIN && *whole <= INT32_MAX)
            field = vb::Variant(static_cast<int>(*whole));
        else
            field = vb::Variant(static_cast<double>(*whole));
    } else if (auto number = parseNumber(t)) {
        field = vb::Variant(*number);
    } else {
        throw ScriptError("a number, True, False, Empty or a quoted text is needed, not " + t.text);
    }
}

} // namespace tavrin::cli
