/// Goes over all controls of a property window: what each of them changes, and what it leaves.
#pragma once

#include <map>
#include <random>
#include <set>

#include "objects/editor_author.h"

namespace quorvel::test {

/// The fields of a record by name, as text.
using Fields = std::map<std::string, std::string>;

/// The names of the fields whose values differ.
inline std::set<std::string> differing(const Fields& a, const Fields& b) {
    std::set<std::string> names;
    for (const auto& [name, value] : a) {
        if (b.at(name) != value) {
            names.insert(name);
        }
    }
    return names;
}

/// A window and the record that it edits.
struct SweptWindow {
    std::function<void(const std::function<void(const Hand&)>&)> open;
    std::function<Fields()> fields;
    /// Puts the record back to what is swept.
    std::function<void()> reset;
    /// What the window itself makes of such a record when anything of it is saved.
    std::function<Fields(Fields)> settled;
    /// What a change of a control changes: the field of the control first, then those that follow
    /// it. A control that is not named here must not be there.
    std::map<QString, std::vector<std::string>> table;
    const char* ok;
    const char* cancel;
};

/// Controls that the author can change now, on any page.
inline QStringList changeable(const Hand& hand) {
    QStringList names;
    auto* pages = hand.window().findChild<QTabBar*>(QStringLiteral("Pages"));
    for (int page = 0; page < (pages == nullptr ? 1 : pages->count()); ++page) {
        if (pages != nullptr) {
            pages->setCurrentIndex(page);
        }
        for (const QWidget* widget : hand.window().findChildren<QWidget*>()) {
            const auto* edit = qobject_cast<const QLineEdit*>(widget);
            const auto* radio = qobject_cast<const QRadioButton*>(widget);
            const bool value = edit != nullptr && edit->focusPolicy() == Qt::NoFocus;
            const bool control = edit != nullptr || qobject_cast<const QSlider*>(widget) ||
                                 qobject_cast<const QComboBox*>(widget) ||
                                 qobject_cast<const QAbstractButton*>(widget);
            if (control && !value && widget->isEnabled() && widget->isVisible() &&
                !widget->objectName().isEmpty() && !widget->objectName().startsWith(u"qt_") &&
                (radio == nullptr || !radio->isChecked())) {
                names << widget->objectName();
            }
        }
    }
    names.removeDuplicates();
    return names;
}

/// Changes one control as an author does.
inline void change(const Hand& hand, const QString& name) {
    auto& widget = control<QWidget>(hand.window(), name);
    if (auto* list = qobject_cast<QComboBox*>(&widget)) {
        const int other = (std::max(list->currentIndex(), 0) + 1) % list->count();
        list->setCurrentIndex(other);
        Q_EMIT list->activated(other);
    } else if (auto* slider = qobject_cast<QSlider*>(&widget)) {
        slider->setValue(slider->value() > slider->minimum() ? slider->value() - 1
                                                             : slider->maximum());
    } else if (auto* edit = qobject_cast<QLineEdit*>(&widget)) {
        if (edit->isReadOnly()) {
            QTest::mouseDClick(edit, Qt::LeftButton);
        } else {
            edit->setFocus();
            edit->selectAll();
            const QString now = edit->text();
            QTest::keyClicks(
                edit, now == QStringLiteral("31") ? QStringLiteral("32") : QStringLiteral("31"));
        }
    } else {
        control<QAbstractButton>(hand.window(), name).click();
    }
}

/// `leaveOut`: buttons that change nothing by themselves.
inline void sweep(const SweptWindow& window, const QStringList& leaveOut) {
    window.reset();
    const Fields before = window.fields();
    const Fields settled = window.settled(before);
    QStringList names;
    window.open([&](const Hand& hand) {
        names = changeable(hand);
        hand.click(window.ok);
        EXPECT_FALSE(hand.window().isVisible());
    });
    EXPECT_TRUE(differing(before, window.fields()).empty()) << "OK without a change";
    for (const QString& name : names) {
        if (leaveOut.contains(name)) {
            continue;
        }
        SCOPED_TRACE(name.toStdString());
        const auto row = window.table.find(name);
        if (row == window.table.end()) {
            ADD_FAILURE() << "no row in the table";
            continue;
        }
        window.reset();
        window.open([&](const Hand& hand) {
            change(hand, name);
            hand.click(window.cancel);
        });
        EXPECT_TRUE(differing(before, window.fields()).empty()) << "Cancel changes nothing";

        window.reset();
        QString shown;
        window.open([&](const Hand& hand) {
            const auto* edit = hand.window().findChild<QLineEdit*>(name);
            const bool wasEmpty = edit != nullptr && edit->text().isEmpty();
            change(hand, name);
            if (!wasEmpty) {
                shown = name;
            }
            hand.click(window.ok);
            EXPECT_FALSE(hand.window().isVisible());
        });
        std::set<std::string> changed = differing(settled, window.fields());
        const std::set<std::string> may(row->second.begin(), row->second.end());
        for (const std::string& field : changed) {
            EXPECT_TRUE(may.contains(field)) << "changes " << field;
        }
        if (!shown.isEmpty()) {
            EXPECT_TRUE(changed.contains(row->second.front())) << "does not change its field";
        }
    }
}

}  // namespace quorvel::test
