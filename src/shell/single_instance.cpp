#include "shell/single_instance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalSocket>

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
