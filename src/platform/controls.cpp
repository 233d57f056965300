#include "platform/controls.h"

#include "platform/form.h"
#include "platform/variant.h"
#include "platform/vb_error.h"
#include "platform/vb_numeric.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace platform {

PropBase::PropBase(Control* owner, const char* name) : owner_(owner), name_(name) {
    if (owner_) owner_->props_.push_back(this);
}

void PropBase::changed() {
    if (owner_) owner_->notify(this);
}

std::string propText(const std::string& v) { return vb::quote(v); }
std::string propText(bool v) { return v ? "True" : "False"; }
std::string propText(int v) { return std::to_string(v); }
std::string propText(double v) { return vb::formatNumber(v); }

TwipsProp& TwipsProp::operator=(double twips) {
    value_ = owner_ ? owner_->checkGeometry(*this, twips) : twips;
    if (owner_) owner_->geometryChanged(*this);
    changed();
    return *this;
}

void TwipsProp::setFromView(double twips) {
    value_ = twips;
    changed();
}

Control::Control(Form* form, std::string name, ControlKind kind)
    : name_(std::move(name)), kind_(kind), form_(form) {
    if (form_) form_->controls_.push_back(this);
}

Control::~Control() = default;

void Control::Move(double left, double top, double width, double height) {
    Left = left;
    Top = top;
    Width = width;
    Height = height;
}

void Control::Drag(int action) {
    if (form_) form_->drag(*this, action);
}

int Control::observe(Observer fn) {
    int id = nextObserver_++;
    observers_.emplace_back(id, std::move(fn));
    return id;
}

void Control::unobserve(int id) {
    observers_.erase(std::remove_if(observers_.begin(), observers_.end(),
                                    [id](const auto& o) { return o.first == id; }),
                     observers_.end());
}

void Control::notify(const PropBase* prop) {
    // By index: an observer may add or remove observers while it is being told.
    for (std::size_t i = 0; i < observers_.size(); ++i)
        observers_[i].second(prop);
}

const PropBase* Control::property(const std::string& name) const {
    for (const PropBase* p : props_)
        if (name == p->name()) return p;
    return nullptr;
}

// Controls stand at whole pixels; no window can be wider or higher than 32767 pixels.
double Control::checkGeometry(const TwipsProp& prop, double twips) {
    if (!std::isfinite(twips)) vb::raise(vb::Overflow);
    double pixels = vb::roundHalfEven(twips / 15.0);
    bool isSize = &prop == &Width || &prop == &Height;
    if (isSize && (pixels < 0 || pixels > 32767)) vb::raise(vb::InvalidPropertyValue);
    if (!isSize && std::fabs(pixels) > 2147483647.0 / 15.0) vb::raise(vb::Overflow);
    return pixels * 15.0;
}

void ListBox::AddItem(const std::string& item) {
    items_.push_back(item);
    ListCount = static_cast<int>(items_.size());
}

StatusBar::PanelText& StatusBar::Panels(int index) {
    if (index != 1) vb::raise(vb::SubscriptOutOfRange);
    return panel1_;
}

Toolbar::Button* Toolbar::find(const std::string& key) {
    for (auto& b : Buttons)
        if (!key.empty() && b.Key == key) return &b;
    return nullptr;
}

void Toolbar::setValue(const std::string& key, int value) {
    if (Button* b = find(key)) {
        b->Value = value;
        notify(nullptr);
    }
}

Form::Form(std::string name) : Control(nullptr, std::move(name), ControlKind::Form) {}

Control* Form::find(const std::string& name) const {
    for (Control* c : controls_)
        if (c->name() == name) return c;
    return nullptr;
}

// One drag at a time: a new one replaces the one in progress, and a control can end or
// cancel only its own.
void Form::drag(Control& control, int action) {
    if (action == 1)
        dragSource_ = &control;
    else if (dragSource_ != &control)
        return;
    if (DragShown) DragShown(control, action);
    if (action != 1) dragSource_ = nullptr;
}

void Form::dropOn(Control& target, float X, float Y) {
    Control* source = std::exchange(dragSource_, nullptr);
    if (source && target.DragDrop) target.DragDrop(*source, X, Y);
}

} // namespace platform
