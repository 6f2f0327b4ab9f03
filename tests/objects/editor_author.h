/// An author at a property window of the real editor.
#pragma once

#include <QApplication>
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
#include <QWheelEvent>

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
    /// Turns the wheel over a control by one notch, towards the author.
    void turnWheel(const char* name) const {
        auto& widget = get<QWidget>(name);
        const QPointF at(5, 5);
        QWheelEvent wheel(at, widget.mapToGlobal(at), {}, QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &wheel);
    }
    /// Leaves the window by Escape or by its title bar.
    void leave(bool byKey) const {
        if (byKey) {
            QTest::keyClick(&window_, Qt::Key_Escape);
        } else {
            window_.close();
        }
        EXPECT_FALSE(window_.isVisible());
    }
    /// Each text is the caption of something in the window, to the last blank.
    void expectTexts(std::initializer_list<const char*> texts) const {
        QStringList captions;
        for (const QWidget* widget : window_.findChildren<QWidget*>()) {
            if (const auto* group = qobject_cast<const QGroupBox*>(widget)) {
                captions << group->title();
            } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
                captions << button->text();
            } else if (const auto* label = qobject_cast<const QLabel*>(widget)) {
                captions << label->text();
            }
        }
        for (const char* text : texts) {
            EXPECT_TRUE(captions.contains(QString::fromLatin1(text))) << text;
        }
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
            actedBy(author));
    }
    /// Opens the properties of object `k` from its pop-up menu's entry.
    void editObject(int k, const QString& window, const std::function<void(const Hand&)>& author) {
        shell->actions().PopupObject = k;
        withWindow(
            window, [this, k] { shell->actions().ShowObjectProps(slot(k).SlotInt(1)); },
            actedBy(author));
    }
    void editScene(const std::function<void(const Hand&)>& author) {
        withWindow(
            QStringLiteral("sceneimage"), [this] { action(QStringLiteral("scnmen(1)")).trigger(); },
            actedBy(author));
    }
    /// As `editScene`, on the page of movies and sounds.
    void editSceneMedia(const std::function<void(const Hand&)>& author) {
        editScene([&](const Hand& hand) {
            hand.turnTo(1);
            heard();
            author(hand);
        });
    }
    /// Chooses a file of resource/mmedia by the button that asks for one.
    void choose(const Hand& hand, const char* button, const char* file) {
        dialogs.choice = text(files.mmedia(file));
        hand.click(button);
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

    /// Orders to the preview, to compare with what was heard.
    static QStringList orders(std::initializer_list<const char*> orders) {
        QStringList texts;
        for (const char* order : orders) {
            texts << QString::fromLatin1(order);
        }
        return texts;
    }

    TestProject files;

  private:
    /// What the author does in a window, which is closed then if it still stands.
    static std::function<void(QWidget&)> actedBy(const std::function<void(const Hand&)>& author) {
        return [&author](QWidget& window) {
            author(Hand(window));
            if (window.isVisible()) {
                window.close();
            }
        };
    }
};

}  // namespace quorvel::test
