#include "forms/traps.h"

namespace quorvel::forms {

void Traps::tellReadFailure(const QString& procedure, const store::RuntimeError& error) {
    boxes_.show({.text = QStringLiteral("Error %1 (%2) in procedure %3 of Module SceneData")
                             .arg(QString::number(error.number()),
                                  QString::fromStdString(error.description()), procedure),
                 .icon = Box::Icon::information});
}

void Traps::tellWriteFailure(const store::RuntimeError& error) {
    const QString what = QStringLiteral("%1 / %2").arg(QString::number(error.number()),
                                                       QString::fromStdString(error.description()));
    if (error.code() != store::ErrorNumber::accessError) {
        boxes_.tell(QStringLiteral("An unexpected error has occured:\n%1").arg(what));
        return;
    }
    if (!project_.ReadOnlyProject) {
        boxes_.tell(QStringLiteral("Err #%1\nCould not write data!  Possible cause: Project "
                                   "file(s) attribute set to 'Read Only'.")
                        .arg(what));
    }
    project_.ReadOnlyProject = true;
}

}  // namespace quorvel::forms
