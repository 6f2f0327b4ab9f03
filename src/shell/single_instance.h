/// One editor at a time: a second start shows the first one's window.
#pragma once

#include <QLocalServer>
#include <QObject>
#include <QString>

namespace quorvel::shell {

class SingleInstance : public QObject {
    Q_OBJECT
  public:
    /// `name` tells the editors of one author from those of another on the same machine.
    explicit SingleInstance(const QString& name);

    /// True when this is the first instance. Otherwise the first one has been asked to come to the
    /// front.
    bool claim();

    /// The name for the author who runs this process.
    static QString nameForUser();

  Q_SIGNALS:
    /// A second instance was started and has ended.
    void activationAsked();

  private:
    QString name_;
    QLocalServer server_;
};

}  // namespace quorvel::shell
