#include "forms/traps.h"

#include "resources/path_text.h"

namespace quorvel::forms {
namespace {

/// After the words of a failure: what others did to the file, if that is what failed.
QString reasonOf(const store::RuntimeError& error) {
    const auto* loss = dynamic_cast<const store::LostFileError*>(&error);
    return loss == nullptr ? QString() : QStringLiteral("\n\n") + lossText(*loss);
}

QString numberAndDescription(const store::RuntimeError& error) {
    return QStringLiteral("%1 / %2").arg(QString::number(error.number()),
                                         QString::fromStdString(error.description()));
}

Box readFailure(store::ErrorNumber number, const QString& description, const QString& procedure,
                const QString& reason = {}) {
    const QString text =
        QStringLiteral("Error %1 (%2) in procedure %3 of Module SceneData")
            .arg(QString::number(static_cast<int>(number)), description, procedure);
    return {.text = text + reason, .icon = Box::Icon::information};
}

}  // namespace

QString lossText(const store::LostFileError& error) {
    const QString path = resources::pathText(error.file());
    switch (error.loss()) {
        case store::FileLoss::gone:
            return QStringLiteral(
                       "This file is not there any more.  It was moved, renamed or "
                       "deleted while the project was open:\n\n%1")
                .arg(path);
        case store::FileLoss::replaced:
            return QStringLiteral(
                       "This file is not the one that was opened.  Another one was put "
                       "in its place while the project was open:\n\n%1")
                .arg(path);
        case store::FileLoss::shortened:
            break;
    }
    return QStringLiteral(
               "A part of this file is missing.  It was cut off while the project was "
               "open:\n\n%1")
        .arg(path);
}

QString writeFailureText(const store::RuntimeError& error) {
    return QStringLiteral("An unexpected error has occured:\n%1").arg(numberAndDescription(error)) +
           reasonOf(error);
}

void Traps::tellReadFailure(const QString& procedure, const store::RuntimeError& error) {
    boxes_.show(readFailure(error.code(), QString::fromStdString(error.description()), procedure,
                            reasonOf(error)));
}

void Traps::tellReadFailure(const QString& procedure, store::ErrorNumber number,
                            const QString& file) {
    const std::string description(store::describe(number));
    boxes_.show(readFailure(number, QString::fromStdString(description + ": ") + file, procedure));
}

void Traps::tellWriteFailure(const store::RuntimeError& error) {
    if (error.code() != store::ErrorNumber::accessError) {
        boxes_.tell(writeFailureText(error));
        return;
    }
    if (!project_.ReadOnlyProject) {
        boxes_.tell(QStringLiteral("Err #%1\nCould not write data!  Possible cause: Project "
                                   "file(s) attribute set to 'Read Only'.")
                        .arg(numberAndDescription(error)));
    }
    project_.ReadOnlyProject = true;
}

}  // namespace quorvel::forms
