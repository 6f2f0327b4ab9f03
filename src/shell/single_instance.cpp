#include "shell/single_instance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalSocket>
#include <QLockFile>

namespace quorvel::shell {

SingleInstance::SingleInstance(const QString& name) : name_(name) {
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* visitor = server_.nextPendingConnection()) {
            connect(visitor, &QLocalSocket::disconnected, visitor, &QObject::deleteLater);
            Q_EMIT activationAsked();
        }
    });
}

bool SingleInstance::claim() {
    constexpr int kPatienceMs = 1000;
    // Of editors that start at the same moment each would find nobody there. Where the folder takes
    // no such file the editor starts all the same.
    QLockFile turn(QDir::temp().filePath(name_ + QStringLiteral(".lock")));
    turn.tryLock(10 * kPatienceMs);
    QLocalSocket first;
    first.connectToServer(name_);
    if (first.waitForConnected(kPatienceMs)) {
        return false;
    }
    // Nobody answers, so what is left of the name belongs to an editor that crashed.
    QLocalServer::removeServer(name_);
    server_.listen(name_);
    return true;
}

QString SingleInstance::nameForUser() {
    const QByteArray home = QDir::homePath().toUtf8();
    const QByteArray hash = QCryptographicHash::hash(home, QCryptographicHash::Sha256);
    return QStringLiteral("TessaroonWorks-Quorvel-%1")
        .arg(QString::fromLatin1(hash.toHex().left(16)));
}

}  // namespace quorvel::shell
