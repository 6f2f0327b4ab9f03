#include "shell/single_instance.h"

#include <chrono>
#include <cstring>
#include <memory>

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QLockFile>
#include <QTemporaryFile>
#include <QTimer>

namespace quorvel::shell {
namespace {

using namespace std::chrono_literals;

// What is sent: a sign, the length of what follows in bytes, then the paths in UTF-16, each with a
// zero behind it. It never leaves the machine, so the order of the bytes is the machine's.
constexpr quint32 kSign = 0x51565331;
constexpr int kHeadBytes = 2 * sizeof(quint32);

QByteArray messageOf(const QStringList& projects, bool& isWhole) {
    QString text;
    isWhole = true;
    for (const QString& project : projects) {
        if ((text.size() + project.size() + 1) * qsizetype{sizeof(QChar)} >
            SingleInstance::kMostBytes) {
            isWhole = false;
            break;
        }
        text += project + QChar(QChar::Null);
    }
    const auto bytes = static_cast<quint32>(text.size() * qsizetype{sizeof(QChar)});
    QByteArray message(kHeadBytes + static_cast<qsizetype>(bytes), Qt::Uninitialized);
    std::memcpy(message.data(), &kSign, sizeof kSign);
    std::memcpy(message.data() + sizeof kSign, &bytes, sizeof bytes);
    std::memcpy(message.data() + kHeadBytes, text.constData(), bytes);
    return message;
}

enum class Heard : std::uint8_t { more, nonsense, all };

Heard read(const QByteArray& message, QStringList& projects) {
    if (message.size() < kHeadBytes) {
        return Heard::more;
    }
    quint32 sign = 0;
    quint32 bytes = 0;
    std::memcpy(&sign, message.data(), sizeof sign);
    std::memcpy(&bytes, message.data() + sizeof sign, sizeof bytes);
    if (sign != kSign || bytes > SingleInstance::kMostBytes || bytes % sizeof(QChar) != 0 ||
        message.size() > kHeadBytes + static_cast<qsizetype>(bytes)) {
        return Heard::nonsense;
    }
    if (message.size() < kHeadBytes + static_cast<qsizetype>(bytes)) {
        return Heard::more;
    }
    QString text(static_cast<qsizetype>(bytes / sizeof(QChar)), Qt::Uninitialized);
    std::memcpy(text.data(), message.data() + kHeadBytes, bytes);
    projects = text.split(QChar(QChar::Null), Qt::SkipEmptyParts);
    return Heard::all;
}

/// Whether the socket `path` was made by the author who runs this process; folders for temporary
/// files belong to everybody.
bool isOwn(const QString& path) {
    QTemporaryFile own;
    return !own.open() || QFileInfo(path).ownerId() == QFileInfo(own.fileName()).ownerId();
}

}  // namespace

SingleInstance::SingleInstance(const QString& name) : name_(name) {
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* visitor = server_.nextPendingConnection()) {
            receive(visitor);
        }
    });
}

void SingleInstance::receive(QLocalSocket* visitor) {
    connect(visitor, &QLocalSocket::disconnected, visitor, &QObject::deleteLater);
    if (visitors_ >= kMostVisitors) {
        visitor->abort();
        return;
    }
    ++visitors_;
    connect(visitor, &QObject::destroyed, this, [this] { --visitors_; });
    // One that hangs is not waited for.
    QTimer::singleShot(3s, visitor, &QLocalSocket::abort);
    auto heard = std::make_shared<QByteArray>();
    connect(visitor, &QLocalSocket::readyRead, this,
            [this, visitor, heard] { hear(visitor, *heard); });
    hear(visitor, *heard);
}

void SingleInstance::hear(QLocalSocket* visitor, QByteArray& heard) {
    heard += visitor->read(kHeadBytes + kMostBytes + 1 - heard.size());
    QStringList projects;
    switch (read(heard, projects)) {
        case Heard::more:
            return;
        case Heard::nonsense:
            visitor->abort();
            return;
        case Heard::all:
            break;
    }
    disconnect(visitor, &QLocalSocket::readyRead, this, nullptr);
    visitor->disconnectFromServer();
    Q_EMIT activationAsked(projects);
}

SingleInstance::Claim SingleInstance::claim(const QStringList& projects) {
    constexpr int kTurnMs = 1200;
    constexpr int kPatienceMs = 600;
    // Of editors that start at the same moment each would find nobody there. Where the folder takes
    // no such file the editor starts all the same.
    QLockFile turn(QDir::temp().filePath(name_ + QStringLiteral(".lock")));
    turn.tryLock(kTurnMs);
    QLocalSocket first;
    first.connectToServer(name_);
    if (first.waitForConnected(kPatienceMs) && isOwn(first.fullServerName())) {
        bool isWhole = true;
        first.write(messageOf(projects, isWhole));
        first.waitForBytesWritten(kPatienceMs);
        first.disconnectFromServer();
        return isWhole ? Claim::handed : Claim::notAll;
    }
    // Nobody answers, so what is left of the name belongs to an editor that crashed.
    QLocalServer::removeServer(name_);
    server_.listen(name_);
    return Claim::first;
}

QString SingleInstance::nameForUser() {
    const QByteArray home = QDir::homePath().toUtf8();
    const QByteArray hash = QCryptographicHash::hash(home, QCryptographicHash::Sha256);
    return QStringLiteral("TessaroonWorks-Quorvel-%1")
        .arg(QString::fromLatin1(hash.toHex().left(16)));
}

}  // namespace quorvel::shell
