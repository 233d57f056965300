#include "platform/variant.h"

#include "platform/vb_error.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace vb {

Variant::Variant(int v) : num_(v) {
    kind_ = (v >= -32768 && v <= 32767) ? Kind::Integer : Kind::Long;
}

Variant::Variant(long long v) : num_(static_cast<double>(v)) {
    kind_ = (v >= INT32_MIN && v <= INT32_MAX) ? Kind::Long : Kind::Double;
}

Variant Variant::Long(int32_t v) {
    Variant r(static_cast<long long>(v));
    return r;
}

double Variant::num() const {
    if (kind_ != Kind::String) return num_;
    const char* begin = text_.c_str();
    while (*begin == ' ')
        ++begin;
    if (*begin == '\0') raise(TypeMismatch);
    char* end = nullptr;
    double v = std::strtod(begin, &end);
    while (end && *end == ' ')
        ++end;
    if (end == begin || (end && *end != '\0')) raise(TypeMismatch);
    return v;
}

std::string Variant::str() const {
    switch (kind_) {
    case Kind::Empty:
        return "";
    case Kind::String:
        return text_;
    case Kind::Boolean:
        return num_ != 0.0 ? "True" : "False";
    case Kind::Single:
        return formatSingle(static_cast<float>(num_));
    default:
        return formatNumber(num_);
    }
}

std::string Variant::repr() const {
    if (kind_ == Kind::Empty) return "Empty";
    if (kind_ == Kind::String) return quote(text_);
    return str();
}

bool Variant::textEquals(const std::string& b) const {
    if (kind_ == Kind::Empty) return b.empty();
    return str() == b;
}

bool Variant::numEquals(double b) const {
    if (kind_ == Kind::String) return false; // a text never equals a number
    return num_ == b;
}

std::string formatNumber(double v) {
    if (v == 0.0) return "0"; // also -0
    std::array<char, 64> buf{};
    auto res = std::to_chars(buf.data(), buf.data() + buf.size(), v);
    return std::string(buf.data(), res.ptr);
}

std::string formatSingle(float v) {
    if (v == 0.0f) return "0";
    std::array<char, 64> buf{};
    auto res = std::to_chars(buf.data(), buf.data() + buf.size(), v);
    return std::string(buf.data(), res.ptr);
}

std::string quote(const std::string& text) {
    std::string out = "\"";
    for (char c : text) {
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (c == '\r') {
            out += "\\r";
        } else {
            out += c;
        }
    }
    out += '"';
    return out;
}

} // namespace vb
