#pragma once
// The start form: product, platform, version, the release notes, "OK" and "I Quit".
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/host.h"

#include <functional>
#include <string>
#include <vector>

namespace tavrin {

// The program's version, "major.minor.revision", from the build's one statement of it.
#define TAVRIN_TEXT(x) #x
#define TAVRIN_VERSION_TEXT(a, b, c) TAVRIN_TEXT(a) "." TAVRIN_TEXT(b) "." TAVRIN_TEXT(c)
inline constexpr const char* kVersion =
    TAVRIN_VERSION_TEXT(TAVRIN_VERSION_MAJOR, TAVRIN_VERSION_MINOR, TAVRIN_VERSION_REVISION);
#undef TAVRIN_VERSION_TEXT
#undef TAVRIN_TEXT

class FrmSplash : public platform::Form {
public:
    // showMain: what "OK" does after the splash is unloaded (makes and shows frmMain).
    FrmSplash(platform::Host& host, std::function<void()> showMain);

    void Form_Load();
    void SSCommand1_Click();
    void SSCommand2_Click();

    platform::Label lblProductName{this, "lblProductName"};
    platform::Label lblPlatform{this, "lblPlatform"};
    platform::Label lblVersion{this, "lblVersion"};
    platform::ListBox List1{this, "List1"};
    platform::CommandButton SSCommand1{this, "SSCommand1"};
    platform::CommandButton SSCommand2{this, "SSCommand2"};

private:
    platform::Host& host_;
    std::function<void()> showMain_;
};

// The release notes, one list entry per line, in the order they are shown.
const std::vector<std::string>& releaseNotes();

} // namespace tavrin
