#include "canvas/object_actions.h"

#include <array>
#include <utility>

#include <QContextMenuEvent>
#include <QMouseEvent>

#include "canvas/focus_outline.h"
#include "canvas/insert_form.h"
#include "canvas/object_kinds.h"
#include "canvas/resize_form.h"
#include "canvas/texts.h"

namespace quorvel::canvas {

using forms::Answer;
using forms::Box;
using store::ObjectType;

namespace {

/// The pop-up of a known type.
PopupMenu menuOf(ObjectType type) {
    constexpr std::array kMenus = {PopupMenu::ambient,      PopupMenu::hotSpot,
                                   PopupMenu::goodie,       PopupMenu::switchObject,
                                   PopupMenu::reactor,      PopupMenu::responder,
                                   PopupMenu::delay,        PopupMenu::multiTrigger,
                                   PopupMenu::conversation, PopupMenu::flagConjunction};
    return kMenus.at(static_cast<std::size_t>(type));
}

}  // namespace

ObjectActions::ObjectActions(const House& house)
    : house_(house), dragging_(house.view, house.project), menus_(nullptr) {
    connect(&menus_, &menus::chosen, this, &ObjectActions::answer);
    for (SceneElement* element : house_.view.movableElements()) {
        element->installEventFilter(this);
        element->setFocusPolicy(Qt::TabFocus);
    }
    house_.view.imageElement().installEventFilter(this);
    // Made last: it has to see the keys that the others take.
    new FocusOutline(house_.view.movableElements(), &house_.view.canvas());
}

bool ObjectActions::eventFilter(QObject* watched, QEvent* event) {
    auto* element = qobject_cast<SceneElement*>(watched);
    if (element == nullptr || dragging_.isDragging() || house_.project.CurrentScene == 0) {
        return false;
    }
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
        const auto& mouse = static_cast<QMouseEvent&>(*event);
        if (mouse.button() == Qt::RightButton) {
            const QPoint screen = mouse.globalPosition().toPoint();
            openMenu(*element, screen, house_.view.canvas().mapFromGlobal(screen));
            return true;
        }
    }
    if (event->type() == QEvent::ContextMenu) {
        const auto& menu = static_cast<QContextMenuEvent&>(*event);
        if (menu.reason() == QContextMenuEvent::Keyboard) {
            // In the middle of what is seen of the element.
            const QRect seen = element->geometry() & house_.view.canvas().rect();
            const QPoint at = (seen.isEmpty() ? house_.view.canvas().rect() : seen).center();
            openMenu(*element, house_.view.canvas().mapToGlobal(at), at);
        }
        return true;
    }
    return false;
}

void ObjectActions::openMenu(SceneElement& element, QPoint screen, QPoint at) {
    switch (element.kind()) {
        case SceneElement::Kind::image:
            openSceneMenu(screen, at);
            break;
        case SceneElement::Kind::link:
            openLinkMenu(element.index(), screen);
            break;
        case SceneElement::Kind::object:
        case SceneElement::Kind::quickSpot:
            openObjectMenu(element.index(), screen);
            break;
    }
}

void ObjectActions::openObjectMenu(int k, QPoint screen) {
    PopupObject = k;
    const store::ObjectSlot& slot = house_.scene.slot(k);
    const ObjectType type = store::typeOf(slot);
    if (!store::isKnownType(type)) {
        tellUnknownType();
        return;
    }
    const PopupMenu menu = menuOf(type);
    prepareObjectJumps(slot, menu);
    const bool stored = house_.project.currentSceneStored();
    const bool edited = editors_.contains(type);
    menus_.setAvailable(menu, PopupAction::properties, stored && edited,
                        edited ? QString() : windowToCome());
    menus_.setAvailable(menu, PopupAction::remove, stored);
    menus_.open(menu, screen, house_.view.window()->windowHandle());
}

void ObjectActions::prepareObjectJumps(const store::ObjectSlot& slot, PopupMenu menu) {
    using namespace store;
    if (menu == PopupMenu::hotSpot) {
        constexpr int kToMap = 2;
        const bool toMap = number(slot, HotSpot::TargetKind) == kToMap;
        prepareJump(menu, PopupAction::jump, toMap ? 0 : number(slot, HotSpot::TargetScene));
    } else if (menu == PopupMenu::responder) {
        prepareJump(menu, PopupAction::jump, number(slot, Responder::TargetScene));
    } else if (menu == PopupMenu::multiTrigger) {
        prepareJump(menu, PopupAction::jump, number(slot, MultiTrigger::trigger(0).TargetScene));
        prepareJump(menu, PopupAction::jumpSecond,
                    number(slot, MultiTrigger::trigger(1).TargetScene));
        prepareJump(menu, PopupAction::jumpThird,
                    number(slot, MultiTrigger::trigger(2).TargetScene));
    }
}

void ObjectActions::openLinkMenu(int n, QPoint screen) {
    dragging_.CurrentLink = n;
    PopupObject = n;
    prepareJump(PopupMenu::link, PopupAction::jump,
                house_.scene.link(static_cast<store::LinkSide>(n)).target);
    const bool stored = house_.project.currentSceneStored();
    menus_.setAvailable(PopupMenu::link, PopupAction::properties, stored && linkEditor_ != nullptr);
    menus_.setAvailable(PopupMenu::link, PopupAction::resizeLink, stored);
    menus_.open(PopupMenu::link, screen, house_.view.window()->windowHandle());
}

void ObjectActions::openSceneMenu(QPoint screen, QPoint at) {
    InsertX = static_cast<std::int16_t>(at.x());
    InsertY = static_cast<std::int16_t>(at.y());
    prepareJump(PopupMenu::scene, PopupAction::jump,
                house_.scene.header(store::HeaderInt::SceneCheckFlagTarget));
    menus_.open(PopupMenu::scene, screen, house_.view.window()->windowHandle());
}

void ObjectActions::setSceneEntries(bool sceneStored, bool roomForObject) {
    menus_.setAvailable(PopupMenu::scene, PopupAction::properties,
                        sceneStored && sceneEditor_ != nullptr);
    menus_.setAvailable(PopupMenu::scene, PopupAction::insertObject, sceneStored && roomForObject);
}

QString ObjectActions::sceneText(int number) const {
    if (number < 1 || number > house_.project.NumberOfScenes) {
        return {};
    }
    return QString::fromStdString(store::listText(number, house_.project.lists.sceneName(number)));
}

void ObjectActions::prepareJump(PopupMenu menu, PopupAction jump, int target) {
    jumps_[jump] = target;
    if (jump == PopupAction::jump) {
        JumpTarget = target;
    }
    menus_.prepareJump(menu, jump, sceneText(target));
}

void ObjectActions::tellUnknownType() {
    house_.boxes.show(
        {.text = QStringLiteral(
             "This object type is unknown, and was apparently made with a newer version of "
             "Quorvel.\n\nUnknown objects cannot be edited. Please upgrade to the latest version "
             "of Quorvel."),
         .title = QStringLiteral("Unknown Object Type!"),
         .icon = Box::Icon::exclamation});
}

void ObjectActions::answer(PopupMenu menu, PopupAction entry) {
    if (house_.project.CurrentScene == 0) {
        return;  // the project went while the menu was open
    }
    switch (entry) {
        case PopupAction::properties:
            if (menu == PopupMenu::link) {
                linkEditor_();
            } else if (menu == PopupMenu::scene) {
                sceneEditor_();
            } else {
                ShowObjectProps(house_.scene.slot(PopupObject).SlotInt(store::kType.number));
            }
            break;
        case PopupAction::remove:
            RemoveObject(PopupObject);
            break;
        case PopupAction::jump:
        case PopupAction::jumpSecond:
        case PopupAction::jumpThird:
            jumpTo(entry);
            break;
        case PopupAction::resizeLink:
            showResize();
            break;
        case PopupAction::insertObject:
            showNewLink();
            break;
        default:
            break;
    }
}

void ObjectActions::jumpTo(PopupAction entry) {
    JumpTarget = jumps_[entry];
    if (JumpTarget >= 1 && JumpTarget <= house_.project.NumberOfScenes) {
        house_.keeper.GoToScene(JumpTarget);
    }
}

void ObjectActions::registerEditor(ObjectType type, std::function<void()> editor) {
    editors_[type] = std::move(editor);
}

void ObjectActions::ShowObjectProps(int type) {
    const auto editor = editors_.find(static_cast<ObjectType>(type));
    if (editor == editors_.end()) {
        return;
    }
    CurObj = PopupObject;
    editor->second();
    CurObj = 0;
}

void ObjectActions::showNewLink() {
    newlink window(house_.scene, house_.boxes,
                   forms::helpOn(house_.guide, forms::HelpTopic::newlink), house_.view.window());
    if (window.exec() == QDialog::Accepted) {
        InsertObject(window.chosenType, window.chosenIndex);
        ShowObjectProps(static_cast<int>(window.chosenType));
    }
}

void ObjectActions::InsertObject(ObjectType type, int index) {
    store::ResetSlot(house_.scene.slot(index), type, InsertX, InsertY);
    house_.view.forgetPosition(index);
    PopupObject = index;
    house_.view.ShowObject(index);
    house_.view.UpdateObjectCount();
}

void ObjectActions::RemoveObject(int index) {
    if (house_.boxes.show({.text = QStringLiteral("Are you sure you want to remove this object?"),
                           .title = QStringLiteral("Remove Object"),
                           .buttons = Box::Buttons::yesNo,
                           .destroys = true}) != Answer::yes) {
        return;
    }
    house_.scene.slot(index).SlotInt(store::kType.number) =
        static_cast<std::int16_t>(ObjectType::free);
    house_.view.ShowObject(index);
    house_.view.UpdateObjectCount();
    house_.view.followObjectAlert();
}

void ObjectActions::showResize() {
    const auto side = static_cast<store::LinkSide>(dragging_.CurrentLink);
    SceneView& view = house_.view;
    ResizeD window(
        {.side = side,
         .place = [&view, side] { return view.linkPlace(side); },
         .setPlace = [&view, side](const Place& place) { view.setLinkPlace(side, place); }},
        house_.boxes, forms::helpOn(house_.guide, forms::HelpTopic::ResizeD), view.window());
    window.exec();
}

void ObjectActions::ObjAlert_Click() {
    SceneView& view = house_.view;
    for (int k = 1; k <= store::kSlotCount; ++k) {
        if (!view.isObjectOut(k)) {
            continue;
        }
        const QString text =
            QStringLiteral("Object Index #") + signedText(k) +
            QStringLiteral(
                " is out of the scene by more than 50%.\n\nIf transparent, it may be "
                "impossible to access it.\n\nWould you like to move it?");
        if (house_.boxes.show({.text = text,
                               .title = QStringLiteral("Object Position Alert"),
                               .icon = Box::Icon::exclamation,
                               .buttons = Box::Buttons::yesNo}) == Answer::yes) {
            view.DropElement(view.objectElement(k), 0, 0);
        }
    }
    view.followObjectAlert();
}

void ObjectActions::ScnAlert_Click() {
    house_.boxes.show(sceneSizeAlert(house_.view.sceneImageSize()));
}

void ObjectActions::RestoreObjs_Click() {
    house_.guide.ShowQuickTip(forms::TipBefore::restorePositions);
    if (house_.boxes.show({.text = QStringLiteral("Restore the positions of all objects as they "
                                                  "were when this scene was loaded?"),
                           .title = QStringLiteral("Restore Object Positions"),
                           .icon = Box::Icon::question,
                           .buttons = Box::Buttons::yesNo,
                           .destroys = true}) == Answer::yes) {
        house_.view.RestoreObjectPositions(2);
    }
}

}  // namespace quorvel::canvas
