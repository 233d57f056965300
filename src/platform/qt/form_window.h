#pragma once
// A window for a Form: its controls stand on one surface at their twips positions
// (15 to the pixel), inside the panels that contain them. Menu items become the menu
// bar, the tool bar control a QToolBar, the status bar the window's status line. Each
// widget follows its control through the control's observers.
#include "platform/form.h"

#include <QMainWindow>

#include <map>
#include <vector>

class QMenu;

namespace platform {
class MenuItem;
}

namespace platform::qt {

class PictureWidget;

// Observers of controls that end with their holder: a menu's or a window's, held as a
// member so that the observers go before the widgets they update.
class Watchers {
public:
    Watchers() = default;
    Watchers(const Watchers&) = delete;
    Watchers& operator=(const Watchers&) = delete;
    ~Watchers();
    void add(Control& control, int id) { ids_.emplace_back(&control, id); }

private:
    std::vector<std::pair<Control*, int>> ids_;
};

class FormWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit FormWindow(Form& form);
    ~FormWindow() override;

    Form& form() { return form_; }
    void syncPictures();
    // The widget made for a control, or nullptr.
    QWidget* widgetFor(const Control* control) const;
    // A menu made from the items under one item (for the popup menu), the caller's to
    // delete.
    QMenu* menuFor(MenuItem& item);
    // Takes the window state of the form (2: maximised).
    void applyWindowState();

    // What closing the window asks the form: true to let it close.
    std::function<bool()> onClose;

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    void followForm();
    void buildMenus();
    void fillMenu(QMenu* menu, MenuItem* parent, Watchers& watchers);
    void buildToolbar(class Toolbar& bar);
    void buildStatusBar(class StatusBar& bar);
    void watch(Control& control, std::function<void()> update);
    static void watch(Watchers& watchers, Control& control, std::function<void()> update);

    Form& form_;
    QWidget* surface_;
    std::map<const Control*, QWidget*> widgets_;
    std::vector<PictureWidget*> pictures_;
    Watchers observers_;
};

} // namespace platform::qt
