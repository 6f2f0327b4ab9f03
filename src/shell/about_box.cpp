#include "shell/about_box.h"

#include <utility>

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QSettings>
#include <QVBoxLayout>

#include "forms/look.h"
#include "shell/editor_settings.h"

namespace quorvel::shell {
namespace {

constexpr int kEmblemSize = 64;
const QString kProgram = QStringLiteral("MSINFO32.EXE");

QLabel* addLabel(QVBoxLayout* column, const QString& name, const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    column->addWidget(label);
    return label;
}

}  // namespace

QString readMachineValue([[maybe_unused]] const QString& key,
                         [[maybe_unused]] const QString& name) {
#ifdef Q_OS_WIN
    return QSettings(QStringLiteral("HKEY_LOCAL_MACHINE\\") + key, QSettings::NativeFormat)
        .value(name)
        .toString();
#else
    return {};
#endif
}

QString findSystemInfo(const MachineValue& machineValue) {
    const QString path = machineValue(QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"),
                                      QStringLiteral("PATH"));
    if (QFileInfo(path).isFile()) {
        return path;
    }
    const QString folder = machineValue(
        QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools Location"), QStringLiteral("MSINFO"));
    const QString inFolder = folder + QLatin1Char('/') + kProgram;
    return !folder.isEmpty() && QFileInfo(inFolder).isFile() ? inFolder : QString();
}

frmAbout::frmAbout(forms::Boxes& boxes, resources::Programs& programs, MachineValue machineValue,
                   QWidget* parent)
    : Form(QStringLiteral("frmAbout"), QStringLiteral("About ") + forms::kProgramTitle, parent),
      boxes_(boxes),
      programs_(programs),
      machineValue_(std::move(machineValue)) {
    auto* emblem = new QLabel(this);
    emblem->setPixmap(
        forms::icon(QStringLiteral("quorvel")).pixmap(QSize(kEmblemSize, kEmblemSize)));
    auto* texts = new QVBoxLayout;
    texts->setSpacing(forms::kFormSpacing);
    QLabel* title = addLabel(texts, QStringLiteral("lblTitle"), forms::kProgramTitle);
    QFont large = title->font();
    large.setBold(true);
    large.setPointSizeF(large.pointSizeF() * 1.6);
    title->setFont(large);
    addLabel(texts, QStringLiteral("lblVersion"), QStringLiteral("Version ") + kEditorVersion);
    addLabel(texts, QStringLiteral("lblDescription"),
             QStringLiteral("Object-Oriented Adventure Game Development System"));
    texts->addStretch(1);
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * forms::kFormMargin);
    row->addWidget(emblem, 0, Qt::AlignTop);
    row->addLayout(texts, 1);

    QVBoxLayout* column = makeColumn();
    column->addLayout(row);
    column->addSpacing(forms::kFormSpacing);
    addButtonRow(column, {{"cmdSysInfo", "&System Info...", [this] { cmdSysInfo_Click(); }},
                          {"cmdOK", "OK", [this] { accept(); }, forms::FormButton::Role::byEnter}});
}

void frmAbout::cmdSysInfo_Click() {
    const QString program = findSystemInfo(machineValue_);
    if (program.isEmpty() || !programs_.start(program)) {
        boxes_.tell(QStringLiteral("System Information is unavailable at this time."));
    }
}

}  // namespace quorvel::shell
