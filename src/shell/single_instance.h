/// One editor at a time: a second start hands its projects to the first one, which comes forward.
#pragma once

#include <QLocalServer>
#include <QObject>
#include <QString>
#include <QStringList>

class QLocalSocket;

namespace quorvel::shell {

class SingleInstance : public QObject {
    Q_OBJECT
  public:
    enum class Claim : std::uint8_t {
        first,   ///< no other editor runs
        handed,  ///< another one runs and has been given the projects
        notAll,  ///< another one runs; those at the end were too many for it
    };

    /// `name` tells the editors of one author from those of another on the same machine.
    explicit SingleInstance(const QString& name);

    /// Looks for another editor of this author and hands `projects`, absolute paths, to it. Takes
    /// less than three seconds, whatever the other one does: one that is busy reads them later.
    Claim claim(const QStringList& projects = {});

    /// The name for the author who runs this process.
    static QString nameForUser();

    /// The most that one start hands over, in bytes.
    static constexpr int kMostBytes = 64 * 1024;
    /// The most starts that are listened to at a time.
    static constexpr int kMostVisitors = 8;

  Q_SIGNALS:
    /// Another editor was started with these projects and ends.
    void activationAsked(const QStringList& projects);

  private:
    void receive(QLocalSocket* visitor);
    void hear(QLocalSocket* visitor, QByteArray& heard);

    QString name_;
    int visitors_ = 0;
    QLocalServer server_;
};

}  // namespace quorvel::shell
