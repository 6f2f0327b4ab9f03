/// Tips, help, the About box and the way to the product's page: all that the Help menu opens.
#pragma once

#include <memory>

#include "forms/guide.h"
#include "shell/about_box.h"
#include "shell/editor_settings.h"

namespace quorvel::shell {

class HelpWindow;
class frmTip;

/// The product's home page.
inline const QString kHomePage = QStringLiteral("https://quorvel.example/quorvel/index.htm");

/// Owns the windows that it shows. All references must outlive it.
class AuthorGuide : public forms::Guide {
  public:
    struct House {
        EditorSettings& settings;
        forms::Boxes& boxes;
        resources::Programs& programs;
        const QString& helpFile;  ///< the first page of the help
        QWidget& main;
        MachineValue machineValue;
    };
    explicit AuthorGuide(House house);
    ~AuthorGuide() override;

    void ShowHelp(forms::HelpTopic topic) override;
    void ShowQuickTip(int number) override;

    /// The Tip of the Day without waiting for it, and modally.
    void showTipAtStart();
    void showTipOfTheDay();

    void showAbout();
    void visitWebsite() { OpenUrl(kHomePage); }

    /// Hands a web address to the default browser; the author is told when there is none.
    void OpenUrl(const QString& address);

    /// Takes away what stands beside the main window.
    void closeWindows();

  private:
    /// The parent of a window that opens now.
    [[nodiscard]] QWidget* frontWindow() const;

    /// The one Tip of the Day; it goes when it is closed.
    frmTip& tip();

    House house_;
    std::unique_ptr<HelpWindow> help_;
    std::unique_ptr<frmTip> tip_;
};

}  // namespace quorvel::shell
