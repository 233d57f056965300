// Tavrin: the start form comes first; its "OK" makes and shows the main window.
#include "editor/frm_main.h"
#include "platform/qt/dispatch.h"
#include "platform/qt/form_window.h"
#include "platform/qt/model_preview_window.h"
#include "platform/qt/qt_host.h"
#include "shell/frm_splash.h"

#include <QApplication>

#include <memory>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("Tavrin");
    QApplication::setApplicationVersion(tavrin::kVersion);

    platform::qt::QtHost host;
    std::unique_ptr<tavrin::FrmMain> frmMain;
    // Made at its first opening; goes before the editor it shows.
    std::unique_ptr<platform::qt::ModelPreviewWindow> preview;

    auto showMain = [&] {
        frmMain = std::make_unique<tavrin::FrmMain>(host);
        frmMain->Form_Load();
        frmMain->showModelPreview = [&] {
            if (!preview) preview = std::make_unique<platform::qt::ModelPreviewWindow>(*frmMain);
            preview->open();
        };
        host.ShowForm(*frmMain);
        if (auto* window = host.windowFor(*frmMain)) {
            window->onClose = [&] {
                int16_t cancel = 0;
                bool ended = false;
                platform::qt::runEvent([&] {
                    try {
                        frmMain->Form_Unload(cancel);
                    } catch (const vb::EndProgram&) {
                        ended = true;
                        throw;
                    }
                });
                return ended || cancel == 0;
            };
        }
    };

    tavrin::FrmSplash splash(host, showMain);
    platform::qt::runEvent([&] {
        splash.Form_Load();
        host.ShowForm(splash);
    });

    int status = app.exec();
    preview.reset();
    host.closeAll();
    return status;
}
