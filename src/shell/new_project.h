/// The window that begins a new game.
#pragma once

#include <functional>

#include "forms/boxes.h"
#include "forms/file_dialogs.h"
#include "forms/form.h"
#include "forms/note_line.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace quorvel::shell {

class NewProject : public forms::Form {
    Q_OBJECT
  public:
    struct Work {
        forms::FileDialogs& dialogs;
        forms::Boxes& boxes;
        QString startFolder;  ///< where the folder dialog begins
        /// Makes the project `name` in `folder` and opens it. False when that failed, which the
        /// author has been told; the window then stays.
        std::function<bool(const QString& folder, const QString& name)> create;
        std::function<void()> help;  ///< without it the Help button is disabled
    };
    /// What `work` names must outlive the window.
    NewProject(Work work, QWidget* parent);

    /// Closing the window does nothing while the project is being made.
    void reject() override;
    [[nodiscard]] bool isWorking() const override { return working_; }

  private:
    void build();
    void addFolderRow(QVBoxLayout* column);
    void addNameRow(QVBoxLayout* column);
    static QLabel* addLabel(QVBoxLayout* column, QLabel* label, const char* name);
    QLabel* addText(QVBoxLayout* column, const char* name, const QString& text);
    void ChooseNewFolder();
    void Text1_Change();
    void Command2_Click();
    void followName();
    void finishName();
    void showPath();
    [[nodiscard]] bool checkName();
    [[nodiscard]] bool checkFolder();
    void setWorking(bool working);

    Work work_;
    QLineEdit* folder_ = nullptr;  // `Text1`
    QLineEdit* name_ = nullptr;    // `Text2`
    QLabel* wait_ = nullptr;       // `Label6`
    forms::NoteLine* cut_ = nullptr;
    forms::NoteLine* path_ = nullptr;
    QPushButton* choose_ = nullptr;
    QPushButton* ok_ = nullptr;
    QPushButton* cancel_ = nullptr;
    bool working_ = false;
};

}  // namespace quorvel::shell
