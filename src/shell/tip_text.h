/// How the windows of tips show their text: beside a lamp, whole, in lines that are easy to read.
#pragma once

#include <QString>
#include <QStringList>

class QLabel;
class QVBoxLayout;

namespace quorvel::shell {

/// A lamp and a label for a tip, at the end of `column`. Returns the label.
QLabel* addTipText(QVBoxLayout* column, const QString& name);

/// Shows `text`. There is room for the longest of `all`, so that the window keeps its size.
void showTipText(QLabel& label, const QStringList& all, const QString& text);

}  // namespace quorvel::shell
