#include "support/windows/virtual_screen.h"

#include <gtest/gtest.h>

#include <QProcessEnvironment>
#include <QStandardPaths>

#include "support/windows/played_author.h"

namespace quorvel::test {
namespace {

constexpr int kPatienceMs = 20000;

}  // namespace

VirtualScreen::VirtualScreen(QSize size) {
    for (const char* tool : {"Xvfb", "import", "xdotool"}) {
        if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty()) {
            whyNot_ = QStringLiteral("there is no %1").arg(QString::fromLatin1(tool));
            return;
        }
    }
    xvfb_.setStandardErrorFile(QProcess::nullDevice());
    xvfb_.start(
        QStringLiteral("Xvfb"),
        {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
         QStringLiteral("0"), QStringLiteral("%1x%2x24").arg(size.width()).arg(size.height()),
         QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-nocursor"),
         QStringLiteral("-noreset")});
    bool more = true;
    while (more && !xvfb_.canReadLine()) {
        more = xvfb_.waitForReadyRead(kPatienceMs);
    }
    const QByteArray number = xvfb_.readLine().trimmed();
    if (number.isEmpty()) {
        whyNot_ = QStringLiteral("Xvfb did not start");
        return;
    }
    display_ = QLatin1Char(':') + QString::fromLatin1(number);
}

VirtualScreen::~VirtualScreen() {
    xvfb_.terminate();
    xvfb_.waitForFinished(kPatienceMs);
}

std::unique_ptr<QProcess> VirtualScreen::start(const QString& program,
                                               const QStringList& arguments) const {
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), display_);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.remove(QStringLiteral("QT_SCALE_FACTOR"));
    // libxkbcommon-x11 gives strndup a text of an X message that does not end in a zero. It is read
    // no further than its length, but strict checks want the zero.
    environment.insert(QStringLiteral("ASAN_OPTIONS"),
                       environment.value(QStringLiteral("ASAN_OPTIONS")) +
                           QStringLiteral(":strict_string_checks=0"));
    process->setProcessEnvironment(environment);
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(program, arguments);
    return process;
}

QByteArray VirtualScreen::run(const QString& tool, const QStringList& arguments) const {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), display_);
    process.setProcessEnvironment(environment);
    process.start(tool, arguments);
    EXPECT_TRUE(process.waitForFinished(kPatienceMs)) << tool.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

QImage VirtualScreen::picture() const {
    return QImage::fromData(
        run(QStringLiteral("import"),
            {QStringLiteral("-window"), QStringLiteral("root"), QStringLiteral("png:-")}),
        "PNG");
}

bool VirtualScreen::waitForColour(QPoint at, const QColor& colour, int ms) const {
    return waitUntil(
        [&] {
            const QImage image = picture();
            return image.valid(at) && image.pixelColor(at) == colour;
        },
        ms);
}

void VirtualScreen::click(QPoint at) const {
    run(QStringLiteral("xdotool"),
        {QStringLiteral("mousemove"), QString::number(at.x()), QString::number(at.y()),
         QStringLiteral("click"), QStringLiteral("1")});
}

}  // namespace quorvel::test
