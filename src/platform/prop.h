#pragma once
// Properties of controls as plain data. An assignment reads as the editor writes it
// (SSPanel3.Caption = "Zoom") and tells the control's observers, so a view can follow
// the state without the editor ever asking the view what it shows.
#include <string>

namespace platform {

class Control;

class PropBase {
public:
    PropBase(Control* owner, const char* name);
    PropBase(const PropBase&) = delete;
    virtual ~PropBase() = default;

    const char* name() const { return name_; }
    // The value for inspection: texts in double quotes, booleans True/False.
    virtual std::string text() const = 0;

protected:
    void changed();
    Control* owner_;

private:
    const char* name_;
};

std::string propText(const std::string& v);
std::string propText(bool v);
std::string propText(int v);
std::string propText(double v);

template <class T> class Prop : public PropBase {
public:
    Prop(Control* owner, const char* name, T initial = T{})
        : PropBase(owner, name), value_(std::move(initial)) {}

    Prop& operator=(const T& v) {
        value_ = v;
        changed();
        return *this;
    }
    Prop& operator=(const Prop& other) { return *this = other.value_; }

    operator const T&() const { return value_; }
    const T& get() const { return value_; }
    std::string text() const override { return propText(value_); }

private:
    T value_;
};

// Left, Top, Width, Height in twips, held at whole pixels (15 twips each). The owner
// may refuse a value (a negative size, a size no window can have) with an error.
class TwipsProp : public PropBase {
public:
    TwipsProp(Control* owner, const char* name, double initial = 0.0)
        : PropBase(owner, name), value_(initial) {}

    TwipsProp& operator=(double twips);
    TwipsProp& operator=(const TwipsProp& other) { return *this = other.value_; }
    TwipsProp& operator+=(double twips) { return *this = value_ + twips; }
    TwipsProp& operator-=(double twips) { return *this = value_ - twips; }

    operator double() const { return value_; }
    double get() const { return value_; }
    int pixels() const { return static_cast<int>(value_ / 15.0); }
    std::string text() const override { return propText(value_); }

    // Sets the value without asking the owner: for the view reporting a size it has.
    void setFromView(double twips);

private:
    double value_;
};

} // namespace platform
