#pragma once
// A dynamic number or value: it keeps the kind of whatever was stored last. An unset one
// reads as 0 or as "" as the context needs; sums and products are done in double, so
// they widen where a fixed-size integer would overflow.
#include <cstdint>
#include <string>

namespace vb {

class Variant {
public:
    enum class Kind { Empty, Integer, Long, Single, Double, String, Boolean };

    Variant() = default;
    Variant(int v); // Integer when it fits in 16 bits, else Long
    Variant(int16_t v) : kind_(Kind::Integer), num_(v) {}
    Variant(long long v); // Long when it fits, else Double
    Variant(long v) : Variant(static_cast<long long>(v)) {}
    Variant(float v) : kind_(Kind::Single), num_(v) {}
    Variant(double v) : kind_(Kind::Double), num_(v) {}
    Variant(bool v) : kind_(Kind::Boolean), num_(v ? -1.0 : 0.0) {}
    Variant(std::string v) : kind_(Kind::String), text_(std::move(v)) {}
    Variant(const char* v) : kind_(Kind::String), text_(v) {}

    static Variant Long(int32_t v);

    Kind kind() const { return kind_; }
    bool isEmpty() const { return kind_ == Kind::Empty; }
    bool isText() const { return kind_ == Kind::String; }

    // The number it holds; a text that isn't a number is a type mismatch.
    double num() const;
    operator double() const { return num(); }

    // As text, the way the runtime joins a value into a text: Empty gives "".
    std::string str() const;
    // For inspection: texts in double quotes, Empty, True/False, numbers as str().
    std::string repr() const;

    friend bool operator==(const Variant& a, const char* b) { return a.textEquals(b); }
    friend bool operator==(const Variant& a, const std::string& b) { return a.textEquals(b); }
    friend bool operator==(const Variant& a, int b) { return a.numEquals(b); }
    friend bool operator==(const Variant& a, double b) { return a.numEquals(b); }
    friend bool operator!=(const Variant& a, const char* b) { return !(a == b); }
    friend bool operator!=(const Variant& a, const std::string& b) { return !(a == b); }
    friend bool operator!=(const Variant& a, int b) { return !(a == b); }
    friend bool operator!=(const Variant& a, double b) { return !(a == b); }

private:
    bool textEquals(const std::string& b) const;
    bool numEquals(double b) const;

    Kind kind_ = Kind::Empty;
    double num_ = 0.0;
    std::string text_;
};

// Shortest decimal text that reads back to the same value (float precision for Single).
std::string formatNumber(double v);
std::string formatSingle(float v);
// A text in double quotes with \" \\ and \r escaped.
std::string quote(const std::string& text);

} // namespace vb
