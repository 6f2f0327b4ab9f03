/// An author at a property window of the real editor.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabBar>
#include <QTest>

#include "groups/picture_box.h"
#include "support/gif_bytes.h"
#include "support/windows/shell_fixture.h"

namespace quorvel::test {

/// The window that is open, by its controls' names.
class Hand {
  public:
    explicit Hand(QWidget& window) : window_(window) {}

    [[nodiscard]] QWidget& window() const { return window_; }
    template <class Control>
    [[nodiscard]] Control& get(const char* name) const {
        return control<Control>(window_, QString::fromLatin1(name));
    }
    [[nodiscard]] QPushButton& button(const char* name) const { return get<QPushButton>(name); }
    [[nodiscard]] QLineEdit& box(const char* name) const { return get<QLineEdit>(name); }
    [[nodiscard]] QCheckBox& check(const char* name) const { return get<QCheckBox>(name); }
    [[nodiscard]] QRadioButton& option(const char* name) const { return get<QRadioButton>(name); }
    [[nodiscard]] QComboBox& list(const char* name) const { return get<QComboBox>(name); }
    [[nodiscard]] QSlider& slider(const char* name) const { return get<QSlider>(name); }
    [[nodiscard]] groups::PictureBox& picture(const char* name) const {
        return get<groups::PictureBox>(name);
    }
    [[nodiscard]] QString text(const char* name) const { return box(name).text(); }

    void click(const char* name) const { get<QAbstractButton>(name).click(); }
    /// Chooses an entry as a click on it does.
    void pick(const char* name, int index) const {
        QComboBox& box = list(name);
        ASSERT_LT(index, box.count()) << name;
        box.setCurrentIndex(index);
        Q_EMIT box.activated(index);
    }
    /// Empties the box and types.
    void type(const char* name, const QString& text) const {
        QLineEdit& edit = box(name);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClick(&edit, Qt::Key_Backspace);
        QTest::keyClicks(&edit, text);
    }
    void doubleClick(const char* name) const {
        QTest::mouseDClick(&get<QWidget>(name), Qt::LeftButton);
    }
    /// Shows page `number` of a window that has pages, from 0.
    void turnTo(int number) const { get<QTabBar>("Pages").setCurrentIndex(number); }

  private:
    QWidget& window_;
};

class EditorAuthor : public ShellFixture {
  protected:
    void open(const ProjectBuilder& builder) {
        files = builder.build(projects.path());
        start({text(files.projectPath())});
    }
    /// Opens the properties of edge link `n` from its pop-up menu's entry.
    void editLink(int n, const std::function<void(const Hand&)>& author) {
        shell->actions().PopupObject = n;
        withWindow(
            QStringLiteral("directionprop"),
            [this] {
                Q_EMIT shell->actions().popups().chosen(canvas::PopupMenu::link,
                                                        canvas::PopupAction::properties);
            },
            [&](QWidget& window) {
                author(Hand(window));
                if (window.isVisible()) {
                    window.close();
                }
            });
    }
    /// Opens the properties of object `k` from its pop-up menu's entry.
    void editObject(int k, const QString& window, const std::function<void(const Hand&)>& author) {
        shell->actions().PopupObject = k;
        withWindow(
            window, [this, k] { shell->actions().ShowObjectProps(slot(k).SlotInt(1)); },
            [&](QWidget& shown) {
                author(Hand(shown));
                if (shown.isVisible()) {
                    shown.close();
                }
            });
    }
    void editScene(const std::function<void(const Hand&)>& author) {
        withWindow(
            QStringLiteral("sceneimage"), [this] { action(QStringLiteral("scnmen(1)")).trigger(); },
            [&](QWidget& shown) {
                author(Hand(shown));
                if (shown.isVisible()) {
                    shown.close();
                }
            });
    }
    store::Scene& scene() { return shell->scene(); }
    store::ObjectSlot& slot(int k) { return shell->scene().slot(k); }

    /// The record of a scene as the store has it.
    std::string recordBytes(int number) {
        return readBytes(files.storePath(1),
                         static_cast<std::uintmax_t>(number - 1) * sizeof(store::SceneRecord),
                         sizeof(store::SceneRecord));
    }
    store::SceneRecord record(int number) {
        store::RecordFile<store::SceneRecord> file;
        file.open(files.storePath(1));
        return file.read(number);
    }
    /// What was asked of the preview since the last call.
    QStringList heard() {
        QStringList orders;
        orders.swap(preview->orders);
        return orders;
    }

    TestProject files;
};

}  // namespace quorvel::test
