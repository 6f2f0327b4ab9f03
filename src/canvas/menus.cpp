#include "canvas/menus.h"

#include <array>
#include <string_view>

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QMenu>
#include <QWindow>

namespace quorvel::canvas {
namespace {

using P = PopupMenu;
using A = PopupAction;

struct MenuRow {
    PopupMenu menu;
    const char* name;
    const char* header;
};

struct EntryRow {
    PopupMenu menu;
    const char* name;
    const char* caption;
    PopupAction action;
};

constexpr std::string_view kLine = "-";

// clang-format off
constexpr std::array kMenus = {
    MenuRow{P::ambient, "Animmenu", "Edit Ambient"},
    MenuRow{P::link, "dirmenu", "Edit HotSpot"},
    MenuRow{P::hotSpot, "linkmenu", "Edit Link"},
    MenuRow{P::scene, "SceneMenu", "SceneMenu"},
    MenuRow{P::location, "LocEdMen", "LocationMenu"},
    MenuRow{P::pointer, "pointmenu", "PointMenu"},
    MenuRow{P::goodie, "EdGoodie", "Edit Goodie"},
    MenuRow{P::switchObject, "EdSwitch", "Edit Switch"},
    MenuRow{P::reactor, "EdReact", "Edit Reactor"},
    MenuRow{P::responder, "EdRespond", "Edit Responder"},
    MenuRow{P::delay, "EdDelay", "Edit Delay"},
    MenuRow{P::multiTrigger, "EdEndGame", "Edit MultiTrigger"},
    MenuRow{P::conversation, "edConv", "Edit Conversation"},
    MenuRow{P::flagConjunction, "edFC", "Edit Flag Conjunction"},
};

constexpr std::array kEntries = {
    EntryRow{P::ambient, "animprops", "Ambient Properties", A::properties},
    EntryRow{P::ambient, "removeAnim", "Remove Object", A::remove},
    EntryRow{P::link, "dirprop", "Link Properties", A::properties},
    EntryRow{P::link, "JumpToDir", "Jump to (No Link Defined)", A::jump},
    EntryRow{P::link, "", "-", A::none},
    EntryRow{P::link, "ResD", "Resize / Set Defaults", A::resizeLink},
    EntryRow{P::hotSpot, "linkprops", "HotSpot Properties", A::properties},
    EntryRow{P::hotSpot, "JumpToLink", "Jump To Linked Scene", A::jump},
    EntryRow{P::hotSpot, "removelink", "Remove Object", A::remove},
    EntryRow{P::scene, "scnimage", "Scene Properties", A::properties},
    EntryRow{P::scene, "JumpToScn", "Jump To Linked Scene", A::jump},
    EntryRow{P::scene, "", "-", A::none},
    EntryRow{P::scene, "InsertLink", "Insert New Object", A::insertObject},
    EntryRow{P::location, "LocProps(1)", "Location Properties", A::properties},
    EntryRow{P::location, "LocProps(2)", "Remove Location", A::remove},
    EntryRow{P::pointer, "pointmen(1)", "Choose file...", A::chooseFile},
    EntryRow{P::pointer, "pointmen(2)", "Set default", A::setDefault},
    EntryRow{P::goodie, "GoodProps(1)", "Goodie Properties", A::properties},
    EntryRow{P::goodie, "GoodProps(2)", "Remove Object", A::remove},
    EntryRow{P::switchObject, "Switprop(1)", "Switch Properties", A::properties},
    EntryRow{P::switchObject, "Switprop(2)", "Remove Object", A::remove},
    EntryRow{P::reactor, "ReactProp(1)", "Reactor Properties", A::properties},
    EntryRow{P::reactor, "ReactProp(2)", "Remove Object", A::remove},
    EntryRow{P::responder, "RespProp", "Responder Properties", A::properties},
    EntryRow{P::responder, "JumpToResp", "Jump To Linked Scene", A::jump},
    EntryRow{P::responder, "RemResp", "Remove Object", A::remove},
    EntryRow{P::delay, "DelProp(1)", "Delay Properties", A::properties},
    EntryRow{P::delay, "DelProp(2)", "Remove Object", A::remove},
    EntryRow{P::multiTrigger, "EndProp", "Multi-Trigger Properties", A::properties},
    EntryRow{P::multiTrigger, "JumpEnd", "Jump To Linked Scene", A::none},
    EntryRow{P::multiTrigger, "JumpToEnd(1)", "---", A::jump},
    EntryRow{P::multiTrigger, "JumpToEnd(2)", "---", A::jumpSecond},
    EntryRow{P::multiTrigger, "JumpToEnd(3)", "---", A::jumpThird},
    EntryRow{P::multiTrigger, "RemProp", "Remove Object", A::remove},
    EntryRow{P::conversation, "convProp", "Conversation Properties", A::properties},
    EntryRow{P::conversation, "remConv", "Remove Object", A::remove},
    EntryRow{P::flagConjunction, "FCProp", "Flag Conjunction Properties", A::properties},
    EntryRow{P::flagConjunction, "remFC", "Remove Object", A::remove},
};
// clang-format on

bool isJump(PopupAction action) {
    return action == A::jump || action == A::jumpSecond || action == A::jumpThird;
}

}  // namespace

menus::menus(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("menus"));
    setWindowTitle(QStringLiteral("Pop-Up Menu form (Hidden)"));
    hide();
    build();
}

void menus::build() {
    for (const MenuRow& row : kMenus) {
        auto* menu = new QMenu(QString::fromLatin1(row.header), this);
        menu->setObjectName(QString::fromLatin1(row.name));
        menu->installEventFilter(this);
        menus_[row.menu] = menu;
    }
    for (const EntryRow& row : kEntries) {
        QMenu* menu = menus_.at(row.menu);
        if (row.caption == kLine) {
            menu->addSeparator();
            continue;
        }
        const QString name = QString::fromLatin1(row.name);
        const QString caption = QString::fromLatin1(row.caption);
        // The jumps of a Multi-Trigger have a menu of their own.
        if (row.menu == P::multiTrigger && isJump(row.action)) {
            menu = menu->findChild<QMenu*>(QStringLiteral("JumpEnd"));
        } else if (row.action == A::none) {
            QMenu* jumps = menu->addMenu(caption);
            jumps->setObjectName(name);
            jumps->menuAction()->setObjectName(name);
            continue;
        }
        QAction* action = menu->addAction(caption);
        action->setObjectName(name);
        entries_[{row.menu, row.action}] = action;
        connect(action, &QAction::triggered, this,
                [this, which = row.menu, entry = row.action] { Q_EMIT chosen(which, entry); });
    }
    for (const auto& [which, menu] : menus_) {
        menu->addSeparator();
        menu->addAction(QStringLiteral("Cancel Menu"))->setObjectName(QStringLiteral("EdCancel"));
    }
}

void menus::open(PopupMenu which, QPoint screen, QWindow* over) {
    QMenu& opened = menu(which);
    opened.winId();  // makes the handle
    opened.windowHandle()->setTransientParent(over);
    opened.popup(screen);
}

QAction* menus::entryOf(PopupMenu which, PopupAction entry) const {
    const auto found = entries_.find({which, entry});
    return found == entries_.end() ? nullptr : found->second;
}

void menus::prepareJump(PopupMenu which, PopupAction jump, const QString& scene) {
    QAction* action = entryOf(which, jump);
    if (action == nullptr) {
        return;
    }
    QString literal = scene;
    literal.replace(QLatin1Char('&'), QStringLiteral("&&"));
    action->setText(scene.isEmpty() ? QStringLiteral("(No Link Defined)")
                                    : QStringLiteral("Jump To <%1>").arg(literal));
    action->setEnabled(!scene.isEmpty());
}

void menus::setAvailable(PopupMenu which, PopupAction entry, bool available,
                         const QString& whyOff) {
    if (QAction* action = entryOf(which, entry)) {
        action->setEnabled(available);
        action->setStatusTip(available ? QString() : whyOff);
    }
}

bool menus::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::StatusTip || parentWidget() == nullptr) {
        return QWidget::eventFilter(watched, event);
    }
    QCoreApplication::sendEvent(parentWidget(), event);
    return true;
}

}  // namespace quorvel::canvas
