/// What all property windows have in common: Apply, OK, Cancel, Help; filling, saving, closing.
#pragma once

#include "forms/form.h"
#include "groups/pages.h"
#include "groups/sheet.h"

namespace quorvel::groups {

/// A window over the fields of one record that is in memory.
///
/// It fills itself when it is shown and is clean then: Apply is disabled. What the author changes
/// enables Apply. Apply and OK check everything first, then store everything; a window that refuses
/// has told why, stays open and has stored nothing. Nothing here writes to a disk, so Cancel after
/// Apply takes nothing back.
class PropertyForm : public forms::Form {
    Q_OBJECT
  public:
    PropertyForm(const QString& name, const QString& title, const Tools& tools, QWidget* parent);

    /// From the end of the filling until the window closes.
    bool FormLoaded = false;

    /// Stores what the controls show. False when the window refused; the author has been told.
    bool SaveProps();
    /// What OK does: stores what the author changed, and closes. False when the window refused and
    /// stays open.
    bool saveAndClose();
    /// Whether the author changed something that is not stored yet.
    [[nodiscard]] bool isChanged();
    /// Stops what can be heard and seen.
    void StopPreviews() { Q_EMIT sheet_.closing(); }

    void done(int result) override;

  protected:
    /// The names of the buttons, by what they do.
    struct Buttons {
        const char* apply;
        const char* cancel;
        const char* ok;
        const char* help;
        const char* restore = nullptr;  ///< of a window that makes room for movies
    };

    [[nodiscard]] Sheet& sheet() { return sheet_; }
    /// The column that the window's groups stand in.
    [[nodiscard]] QVBoxLayout* column() { return column_; }
    /// Makes the window one of several pages.
    Pages* addPages();
    /// The row of buttons, with `before` at its left. Without `help` its button is disabled.
    void addButtons(const Buttons& buttons, const std::function<void()>& help,
                    QLayout* before = nullptr);

    // What a window adds.
    /// The controls have been filled; rules that enable and disable follow here. It counts as
    /// filling still.
    virtual void filled() {}
    /// Whether what the controls show may be stored; tells why not.
    virtual bool check() { return true; }
    /// The fields have been stored.
    virtual void stored() {}
    /// The window has closed.
    virtual void closed() {}

    /// Turns to the page of a control that has to be corrected and gives it the keyboard.
    void lead(QWidget& control);

    void showEvent(QShowEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void tellOpened();
    void tellProblem(const Binding& binding);
    void makeRoom();
    void returnRoom();

    Sheet sheet_;
    QWidget* content_ = nullptr;
    QVBoxLayout* column_ = nullptr;
    QPushButton* restoreIt_ = nullptr;
    QPushButton* apply_ = nullptr;
    Pages* pages_ = nullptr;
    QRect full_;  // the window's place while it makes room for a movie
};

}  // namespace quorvel::groups
