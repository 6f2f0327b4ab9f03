#include "shell/editor_settings.h"

#include <algorithm>

#include "resources/path_text.h"
#include "store/numbers.h"

namespace quorvel::shell {
namespace {

const QString kMainWindowPlace = QStringLiteral("MainWindowPlace");
const QString kMainWindowMaximised = QStringLiteral("MainWindowMaximised");
/// Left edge, upper edge, width and height.
constexpr int kPlaceNumbers = 4;

QString numbered(const char* name, std::size_t index) {
    return QString::fromLatin1(name) + QString::number(index + 1);
}

int number(const QString& text) {
    return store::valInt(text.toStdString());
}

}  // namespace

EditorSettings::EditorSettings()
    : values_(QStringLiteral("TessaroonWorks"), QStringLiteral("Quorvel")) {}

QString EditorSettings::ReadRegValue(const QString& name) const {
    return values_.value(name).toString();
}

void EditorSettings::WriteRegValue(const QString& name, const QString& value) {
    values_.setValue(name, value);
}

void EditorSettings::GetEditorSettings() {
    DefaultFolder = number(ReadRegValue(QStringLiteral("Default Folder")));
    WrongFolder = number(ReadRegValue(QStringLiteral("Wrong Folder")));
    TipsAtStart = ReadRegValue(QStringLiteral("TOTD"));
    LastTip = number(ReadRegValue(QStringLiteral("LastTip")));
    for (std::size_t i = 0; i < RecentProj.size(); ++i) {
        RecentProj[i] = resources::fromStoredPath(ReadRegValue(numbered("RecentProj ", i)));
    }
    for (std::size_t i = 0; i < RunProgram.size(); ++i) {
        RunProgram[i] = ReadRegValue(numbered("Run-Menu/Program ", i));
    }
}

void EditorSettings::SaveEditorSettings() {
    WriteRegValue(QStringLiteral("Installed Version"), kEditorVersion);
    WriteRegValue(QStringLiteral("Default Folder"), QString::number(DefaultFolder));
    WriteRegValue(QStringLiteral("Wrong Folder"), QString::number(WrongFolder));
    WriteRegValue(QStringLiteral("TOTD"), TipsAtStart);
    WriteRegValue(QStringLiteral("LastTip"), QString::number(LastTip));
    for (std::size_t i = 0; i < RecentProj.size(); ++i) {
        WriteRegValue(numbered("RecentProj ", i), resources::storedPath(RecentProj[i]));
    }
    for (std::size_t i = 0; i < RunProgram.size(); ++i) {
        WriteRegValue(numbered("Run-Menu/Program ", i), RunProgram[i]);
    }
    sync();
}

void EditorSettings::sync() {
    values_.sync();
    if (values_.status() != QSettings::NoError && !isRefused_) {
        isRefused_ = true;
        if (whenNotWritten) {
            whenNotWritten(values_.fileName());
        }
    }
}

void EditorSettings::setFirstRunDefaults() {
    WrongFolder = 3;
    TipsAtStart = QStringLiteral("Yes");
    LastTip = 0;
    DefaultFolder = 1;
    RecentProj.fill(QString());
    RunProgram.fill(kUndefinedProgram);
}

void EditorSettings::RestoreQuickTips() {
    values_.remove(kNoTipsAtAll);
    for (int tip = 1; tip <= kQuickTips; ++tip) {
        values_.remove(kNoTip + QString::number(tip));
    }
    sync();
}

void EditorSettings::turnOffQuickTip(int number) {
    WriteRegValue(kNoTip + QString::number(number), QStringLiteral("1"));
    sync();
}

void EditorSettings::turnOffAllQuickTips() {
    WriteRegValue(kNoTipsAtAll, QStringLiteral("1"));
    sync();
}

std::optional<WindowPlace> EditorSettings::lastMainWindow() const {
    constexpr int kMost = 32767;
    const QStringList texts =
        ReadRegValue(kMainWindowPlace).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (texts.size() != kPlaceNumbers) {
        return std::nullopt;
    }
    std::array<int, kPlaceNumbers> numbers{};
    for (int i = 0; i < kPlaceNumbers; ++i) {
        bool isNumber = false;
        int& value = numbers.at(static_cast<std::size_t>(i));
        value = texts[i].toInt(&isNumber);
        if (!isNumber || value < -kMost || value > kMost) {
            return std::nullopt;
        }
    }
    const QRect place(numbers[0], numbers[1], numbers[2], numbers[3]);
    if (place.isEmpty()) {
        return std::nullopt;
    }
    return WindowPlace{place, ReadRegValue(kMainWindowMaximised) == QStringLiteral("Yes")};
}

void EditorSettings::rememberMainWindow(const WindowPlace& place) {
    const QRect& at = place.normal;
    const QString text = QStringLiteral("%1 %2 %3 %4")
                             .arg(QString::number(at.x()), QString::number(at.y()),
                                  QString::number(at.width()), QString::number(at.height()));
    const QString maximised = place.isMaximised ? QStringLiteral("Yes") : QStringLiteral("No");
    if (text == ReadRegValue(kMainWindowPlace) && maximised == ReadRegValue(kMainWindowMaximised)) {
        return;
    }
    WriteRegValue(kMainWindowPlace, text);
    WriteRegValue(kMainWindowMaximised, maximised);
    sync();
}

void EditorSettings::rememberProject(const QString& path) {
    // Paths come as they are spelt on disk, so another letter case is another project.
    const auto same = std::find(RecentProj.begin(), RecentProj.end(), path);
    const auto last = same == RecentProj.end() ? std::prev(RecentProj.end()) : same;
    std::move_backward(RecentProj.begin(), last, std::next(last));
    RecentProj.front() = path;
}

bool EditorSettings::hasRecent(int number) const {
    const QString& path = RecentProj.at(static_cast<std::size_t>(number - 1));
    return !path.trimmed().isEmpty() && path != QStringLiteral("(None)");
}

bool EditorSettings::hasProgram(int number) const {
    const QString& program = RunProgram.at(static_cast<std::size_t>(number - 1));
    return !program.trimmed().isEmpty() && program != kUndefinedProgram;
}

}  // namespace quorvel::shell
