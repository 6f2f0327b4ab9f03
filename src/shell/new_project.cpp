#include "shell/new_project.h"

#include <algorithm>
#include <utility>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "forms/events.h"
#include "forms/intake_boxes.h"
#include "resources/file_names.h"
#include "resources/path_text.h"
#include "shell/folder_tip.h"
#include "shell/project_place.h"

namespace quorvel::shell {
namespace {

/// Room for a text, in pixels.
constexpr int kProjectTextWidth = 560;

}  // namespace

NewProject::NewProject(Work work, QWidget* parent)
    : Form(QStringLiteral("NewProject"), QStringLiteral("New Project"), parent),
      work_(std::move(work)) {
    build();
}

QLabel* NewProject::addText(QVBoxLayout* column, const char* name, const QString& text) {
    return addLabel(column, new QLabel(text, this), name);
}

QLabel* NewProject::addLabel(QVBoxLayout* column, QLabel* label, const char* name) {
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    // Should a label get more room than its text needs, the text stays where the eye expects it,
    // and the picture in it as well.
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setMinimumWidth(kProjectTextWidth);
    column->addWidget(label);
    return label;
}

void NewProject::addFolderRow(QVBoxLayout* column) {
    auto* folderRow = new QHBoxLayout;
    auto* folderLabel = new QLabel(QStringLiteral("Folder >"), this);
    folderLabel->setObjectName(QStringLiteral("Label2"));
    folder_ = new QLineEdit(this);
    folder_->setObjectName(QStringLiteral("Text1"));
    folder_->setAccessibleName(QStringLiteral("Folder"));
    folder_->setReadOnly(true);
    folderRow->addWidget(folderLabel);
    folderRow->addWidget(folder_, 1);
    choose_ = addButton(folderRow, QStringLiteral("Command1"), QStringLiteral("Choose Folder"));
    choose_->setAutoDefault(false);
    column->addLayout(folderRow);
}

void NewProject::addNameRow(QVBoxLayout* column) {
    auto* nameRow = new QHBoxLayout;
    auto* nameLabel = new QLabel(
        QStringLiteral("Project FILENAME (11 Chars max - Do not include extension) >"), this);
    nameLabel->setObjectName(QStringLiteral("Label4"));
    name_ = new QLineEdit(QStringLiteral("Project"), this);
    name_->setObjectName(QStringLiteral("Text2"));
    name_->setAccessibleName(QStringLiteral("Project filename"));
    nameRow->addWidget(nameLabel);
    nameRow->addWidget(name_, 1);
    column->addLayout(nameRow);
    cut_ = new forms::NoteLine(QStringLiteral("NoteOfText2"), this);
    path_ = new forms::NoteLine(QStringLiteral("NoteOfPath"), this);
    column->addWidget(cut_);
    column->addWidget(path_);
}

void NewProject::build() {
    QVBoxLayout* column = makeColumn();
    addText(column, "Label1",
            QStringLiteral("In order to begin creating a new game, you must choose an EMPTY FOLDER "
                           "to place your Project and Game files into."));
    addFolderRow(column);
    addLabel(column,
             new FolderTip(
                 QStringLiteral("TIP- You can create a new folder by clicking on the            "
                                "button in the 'Choose            Folder' Dialog Box.  After "
                                "creating a new folder, be sure to double-click it to choose it!"),
                 this),
             "Label7");
    column->addSpacing(forms::kFormSpacing);

    addNameRow(column);
    addText(column, "Label3",
            QStringLiteral("After you choose your folder, click OK below to copy and create the "
                           "necessary files and sub-folders in your new project's folder.  When "
                           "finished, this window will disappear and you can begin editing your "
                           "new game."));
    addText(column, "Label5",
            QStringLiteral("Please note that if you decide to cancel this \"new game\", that any "
                           "NEW folder you created in the Dialog Box will remain.  You must delete "
                           "this manually if you wish to remove it."));
    wait_ = addText(column, "Label6", QStringLiteral("CREATING NEW PROJECT- PLEASE WAIT..."));
    wait_->setAlignment(Qt::AlignCenter);
    QFont bold = wait_->font();
    bold.setBold(true);
    wait_->setFont(bold);
    // The window keeps its size when the label comes.
    QSizePolicy policy = wait_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    wait_->setSizePolicy(policy);
    wait_->hide();

    const auto buttons = addButtonRow(
        column, {{"Command2", "OK", [this] { Command2_Click(); }, forms::FormButton::Role::byEnter},
                 {"Command3", "Cancel", [this] { reject(); }},
                 {"Command5", "Help", work_.help, forms::FormButton::Role::help}});
    ok_ = buttons[0];
    cancel_ = buttons[1];
    ok_->setEnabled(false);
    connect(choose_, &QPushButton::clicked, this, &NewProject::ChooseNewFolder);
    connect(folder_, &QLineEdit::textChanged, this, &NewProject::Text1_Change);
    connect(name_, &QLineEdit::textChanged, this, &NewProject::followName);
    connect(name_, &QLineEdit::editingFinished, this, &NewProject::finishName);
    choose_->setFocus();
}

void NewProject::ChooseNewFolder() {
    const QString folder =
        work_.dialogs.chooseFolder({.title = QStringLiteral("Choose a folder for your new project"),
                                    .filter = QString(),
                                    .folder = work_.startFolder,
                                    .fileName = QStringLiteral("-Choose an empty folder-")});
    if (!folder.isEmpty()) {
        folder_->setText(folder);
    }
}

void NewProject::Text1_Change() {
    if (!folder_->text().isEmpty()) {
        ok_->setEnabled(true);
    }
    showPath();
}

void NewProject::followName() {
    const QString typed = name_->text();
    const QString kept = typedProjectName(typed);
    const bool isCut = kept != typed;
    if (isCut) {
        const QSignalBlocker quiet(name_);
        const int cursor = name_->cursorPosition();
        name_->setText(kept);
        name_->setCursorPosition(std::min(cursor, static_cast<int>(kept.size())));
    }
    cut_->tell(isCut ? QStringLiteral("A project's filename has at most %1 characters.  The rest "
                                      "was cut off.")
                           .arg(kLongestProjectName)
                     : QString());
    showPath();
}

/// The name is whole: its ending goes.
void NewProject::finishName() {
    const QString name = projectName(name_->text());
    if (name != name_->text()) {
        const QString note = cut_->text();
        name_->setText(name);
        cut_->tell(note);
    }
}

void NewProject::showPath() {
    const QString name = projectName(name_->text());
    path_->tell(
        folder_->text().isEmpty() || name.isEmpty()
            ? QString()
            : QStringLiteral("Will be made:  %1%2.qvl").arg(fullFolder(folder_->text()), name));
}

bool NewProject::checkName() {
    const QString name = name_->text();
    const QString file = name + QStringLiteral(".qvl");
    const auto fault =
        name.trimmed().isEmpty() ? resources::NameFault::empty : resources::nameFault(file);
    if (fault == resources::NameFault::none) {
        return true;
    }
    work_.boxes.show(
        {.text =
             QStringLiteral("A project cannot have the filename \"%1\".\n\n%2\n\nA filename has 1 "
                            "to %3 characters.  Letters, digits and blanks between them can be "
                            "used, and marks such as - _ ! ( ).")
                 .arg(name, forms::reasonOf(fault), QString::number(kLongestProjectName)),
         .title = windowTitle(),
         .icon = forms::Box::Icon::exclamation});
    name_->setFocus();
    name_->selectAll();
    return false;
}

/// A folder that holds `resource` is left to the making, which fails there and says so.
bool NewProject::checkFolder() {
    const QString folder = fullFolder(folder_->text());
    const ProjectPlace place =
        lookInto(resources::pathOf(folder), name_->text() + QStringLiteral(".qvl"));
    if (place.isUnreadable) {
        work_.boxes.show(
            {.text = QStringLiteral("It cannot be seen what lies in this folder:\n\n%1\n\n"
                                    "Please choose another one, or a new one in it.")
                         .arg(folder),
             .title = windowTitle(),
             .icon = forms::Box::Icon::exclamation});
        return false;
    }
    if (place.isEmpty() || place.hasResource) {
        return true;
    }
    QString text =
        place.replaced.empty()
            ? QStringLiteral("Nothing would be replaced, but the folder is not empty:\n\n%1")
                  .arg(folder)
            : QStringLiteral("The new project would replace:\n\n%1\n\nin the folder:\n\n%2")
                  .arg(QStringList(place.replaced.begin(), place.replaced.end())
                           .join(QLatin1Char('\n')),
                       folder);
    if (place.others > 0) {
        text += place.others == 1
                    ? QStringLiteral("\n\nOne other file or folder in it would stay.")
                    : QStringLiteral("\n\n%1 other files and folders in it would stay.")
                          .arg(place.others);
    }
    text += QStringLiteral("\n\nDo you want to make the new project there all the same?");
    return work_.boxes.show({.text = text,
                             .title = windowTitle(),
                             .icon = forms::Box::Icon::exclamation,
                             .buttons = forms::Box::Buttons::yesNo,
                             .destroys = true}) == forms::Answer::yes;
}

void NewProject::Command2_Click() {
    finishName();
    if (!checkName() || !checkFolder()) {
        return;
    }
    setWorking(true);
    forms::letEventsRun();
    const bool created = work_.create(folder_->text(), name_->text());
    setWorking(false);
    if (created) {
        accept();
    }
}

void NewProject::setWorking(bool working) {
    working_ = working;
    ok_->setEnabled(!working);
    cancel_->setEnabled(!working);
    wait_->setVisible(working);
}

void NewProject::reject() {
    if (!working_) {
        Form::reject();
    }
}

}  // namespace quorvel::shell
