/// Tests of this program on a screen of another size or scale.
#pragma once

#include <QMap>
#include <QSize>
#include <QString>

namespace quorvel::test {

/// Runs the tests of this program that match `filter` in a process of its own, on a screen of
/// `screen` logical pixels that nobody sees, each of them `scale` device pixels wide, with
/// `variables` in its environment. They have to pass, and there has to be one.
void expectTestsPass(const QString& filter, QSize screen,
                     const QMap<QString, QString>& variables = {}, int scale = 1);

}  // namespace quorvel::test
