#include "objects/object_editor.h"

#include <QBoxLayout>

#include "canvas/object_kinds.h"
#include "groups/controls.h"

namespace quorvel::objects {

ObjectEditor::ObjectEditor(const QString& name, store::ObjectType type, const House& house,
                           QWidget* parent)
    : PropertyForm(name, QStringLiteral("\"%1\" Object Properties").arg(canvas::tagOf(type)),
                   house.tools, parent),
      house_(house),
      object_(house.CurObj) {}

QLayout* ObjectEditor::indexRow(const char* name) {
    auto* row = new QHBoxLayout;
    row->addWidget(groups::makeLabel("Object Index #", this));
    QLabel* number = groups::makeLabel("", this, name);
    number->setText(QString::number(object_));
    row->addWidget(number);
    return row;
}

}  // namespace quorvel::objects
