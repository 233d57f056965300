#pragma once
// A monkey that lives inside the real program: a library preloaded into the tavrin
// binary, which it changes in nothing. It finds the program's commands on its windows
// (menu bar, popup menu, buttons, tool bar, text boxes, sliders, pictures), so that a
// command added later is covered without an edit here, activates each in turn and then
// thousands in a seeded random order with mouse strokes between them, answers every
// dialog the commands open, and at the end closes the window as a user would. The test
// passes when the program is still alive to end in its own orderly way.
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <cstdio>
#include <random>
#include <vector>

class QAction;
class QMainWindow;
class QMenu;
class QWidget;

namespace monkey {

// What the test gives the monkey, from the environment of the program's process.
struct Settings {
    unsigned seed = 1;
    int actions = 2000; // in the random order, after the pass in turn
    QString files;      // skin.pcx, model.md2, palette.act, palette.pal, junk.bin, saves
    QString log;        // one line an action, written before it runs
};

struct Command {
    enum Kind { Menu, ToolKey, Button, TextBox, Slider, Picture };
    Kind kind;
    QPointer<QObject> target;
    QString name;
    int activated = 0;
};

class Monkey : public QObject {
public:
    explicit Monkey(Settings settings);

    // Answers the dialog or popup menu in front, if any; true when there was one.
    bool answerModal();

private:
    enum class Phase { Start, Setup, InTurn, Random, Closing, Done };

    void tick();
    void schedule();
    void startUp();
    void setUp();
    void discover();
    void runInTurn();
    void runRandom();
    void close();

    bool activate(Command& c, bool asUserCan);
    void openPopup();
    void stroke(QWidget* picture, bool right);
    void type(QWidget* edit);
    QAction* findAction(const QString& text) const;
    QWidget* canvas() const;

    // Dialog answers (monkey_dialogs.cpp).
    bool answerMessageBox(QWidget* w);
    bool answerFileDialog(QWidget* w);
    bool answerPopup(QMenu* menu);
    QString fileFor(const QStringList& filters);

    void say(const QString& line);
    int below(int n) { return n <= 1 ? 0 : static_cast<int>(rng_() % static_cast<unsigned>(n)); }
    bool chance(int percent) { return below(100) < percent; }

    Settings settings_;
    std::mt19937 rng_;
    std::FILE* log_ = nullptr;
    Phase phase_ = Phase::Start;
    QPointer<QMainWindow> main_;
    std::vector<Command> commands_;
    std::size_t next_ = 0;   // the next command in turn: two passes, then popup items
    int done_ = 0;           // actions of the random order done
    int actions_ = 0;        // actions of either kind done
    int busy_ = 0;           // an action's handler is running: only answer
    int popupsShown_ = 0;    // popups answered so far
    int popupItem_ = -1;     // the popup item the pass in turn wants, by number
    QStringList popupItems_; // the popup's items as first seen
    int waited_ = 0;         // ticks spent waiting for something to show
    int saves_ = 0;
    bool answersRandom_ = false; // false while setting up: every dialog gets its file
};

} // namespace monkey
