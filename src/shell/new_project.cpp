#include "shell/new_project.h"

#include <utility>

#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QTextLayout>
#include <QVBoxLayout>

#include "forms/events.h"

namespace quorvel::shell {
namespace {

/// Room for a text, in pixels.
constexpr int kProjectTextWidth = 560;
/// A file name of a project without its ending.
constexpr int kLongestName = 11;

/// A text whose first long gap is room for the picture of the button that it speaks of.
class TextWithButton : public QLabel {
  public:
    TextWithButton(const QString& text, QWidget* parent) : QLabel(text, parent) {}

  protected:
    void paintEvent(QPaintEvent* event) override {
        QLabel::paintEvent(event);
        const QString gap(12, QLatin1Char(' '));
        const auto at = static_cast<int>(text().indexOf(gap));
        QTextLayout layout(text(), font());
        layout.beginLayout();
        int top = 0;
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(contentsRect().width());
            const int height = fontMetrics().lineSpacing();
            if (at >= line.textStart() && at < line.textStart() + line.textLength()) {
                const qreal left = line.cursorToX(at);
                const qreal width = line.cursorToX(at + static_cast<int>(gap.size())) - left;
                const QRect room(qRound(left), contentsRect().top() + top, qRound(width), height);
                QPainter painter(this);
                style()->standardIcon(QStyle::SP_FileDialogNewFolder).paint(&painter, room);
                break;
            }
            top += height;
        }
        layout.endLayout();
    }
};

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

void NewProject::build() {
    QVBoxLayout* column = makeColumn();
    addText(column, "Label1",
            QStringLiteral("In order to begin creating a new game, you must choose an EMPTY FOLDER "
                           "to place your Project and Game files into."));
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
    addLabel(column,
             new TextWithButton(
                 QStringLiteral("TIP- You can create a new folder by clicking on the            "
                                "button in the 'Choose            Folder' Dialog Box.  After "
                                "creating a new folder, be sure to double-click it to choose it!"),
                 this),
             "Label7");
    column->addSpacing(forms::kFormSpacing);

    auto* nameRow = new QHBoxLayout;
    auto* nameLabel = new QLabel(
        QStringLiteral("Project FILENAME (11 Chars max - Do not include extension) >"), this);
    nameLabel->setObjectName(QStringLiteral("Label4"));
    name_ = new QLineEdit(QStringLiteral("Project"), this);
    name_->setObjectName(QStringLiteral("Text2"));
    name_->setAccessibleName(QStringLiteral("Project filename"));
    name_->setMaxLength(kLongestName);
    nameRow->addWidget(nameLabel);
    nameRow->addWidget(name_, 1);
    column->addLayout(nameRow);
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
}

void NewProject::Command2_Click() {
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
