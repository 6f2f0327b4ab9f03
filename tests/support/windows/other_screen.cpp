#include "support/windows/other_screen.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>

#include "resources/path_text.h"
#include "support/file_bytes.h"
#include "support/temp_folder.h"

namespace quorvel::test {

void expectTestsPass(const QString& filter, QSize screen, const QMap<QString, QString>& variables,
                     int scale) {
    const TempFolder folder;
    writeBytes(folder / "screen.json",
               QStringLiteral(R"({"screens": [{"name": "one", "x": 0, "y": 0, "width": %1,
                   "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": %3}]})")
                   .arg(QString::number(screen.width()), QString::number(screen.height()),
                        QString::number(scale))
                   .toStdString());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(
        QStringLiteral("QT_QPA_PLATFORM"),
        QStringLiteral("offscreen:configfile=") + resources::pathText(folder / "screen.json"));
    for (auto one = variables.begin(); one != variables.end(); ++one) {
        environment.insert(one.key(), one.value());
    }
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--gtest_filter=") + filter});
    constexpr int kHang = 100000;  // reached by a hang only
    ASSERT_TRUE(process.waitForFinished(kHang));
    const QByteArray output = process.readAll();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 0) << output.toStdString();
    EXPECT_FALSE(output.contains("[==========] Running 0 tests")) << filter.toStdString();
}

}  // namespace quorvel::test
