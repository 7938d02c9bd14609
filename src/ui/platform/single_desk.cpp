#include "ui/platform/single_desk.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QLocalSocket>
#include <QStandardPaths>

namespace ui {
namespace {

constexpr int kPatience = 2000;  // milliseconds
constexpr const char* kCall = "front\n";
constexpr const char* kAnswer = "here\n";

// A name that only this user's desks on this folder know.
QString NameFor(const QString& program_folder) {
  const QFileInfo folder(program_folder);
  const QByteArray path = folder.canonicalFilePath().toUtf8();
  const QByteArray hash = QCryptographicHash::hash(path, QCryptographicHash::Sha256).toHex();
  QString place = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  if (place.isEmpty()) place = QStandardPaths::writableLocation(QStandardPaths::TempLocation);
  return place + QStringLiteral("/number-desk-") + QString::fromLatin1(hash.left(16));
}

}  // namespace

SingleDesk::SingleDesk(const QString& program_folder, QObject* parent)
    : QObject(parent), name_(NameFor(program_folder)) {
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  connect(&server_, &QLocalServer::newConnection, this, &SingleDesk::Answer);
}

SingleDesk::Place SingleDesk::Take() {
  const Place place = AskTheOther();
  // A socket at which nobody listens was left by a desk that was killed. Where none can be made,
  // and of two desks that start at the same moment, the lock of the database keeps one from
  // storing.
  if (place == Place::kFirst) {
    QLocalServer::removeServer(name_);
    server_.listen(name_);
  }
  return place;
}

SingleDesk::Place SingleDesk::AskTheOther() {
  QDeadlineTimer patience(kPatience);
  QLocalSocket socket;
  socket.connectToServer(name_);
  if (!socket.waitForConnected(static_cast<int>(patience.remainingTime()))) {
    const bool left_over = socket.error() == QLocalSocket::ConnectionRefusedError ||
                           socket.error() == QLocalSocket::ServerNotFoundError;
    return left_over ? Place::kFirst : Place::kUnheard;
  }
  socket.write(kCall);
  socket.flush();
  while (!socket.canReadLine() && !patience.hasExpired()) {
    if (!socket.waitForReadyRead(static_cast<int>(patience.remainingTime()))) break;
  }
  return socket.canReadLine() && socket.readLine() == kAnswer ? Place::kSecond : Place::kUnheard;
}

void SingleDesk::Answer() {
  while (QLocalSocket* const caller = server_.nextPendingConnection()) {
    connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
    const auto listen = [this, caller] {
      if (!caller->canReadLine() || caller->readLine() != kCall) return;
      caller->write(kAnswer);
      caller->flush();
      emit Called();
    };
    connect(caller, &QLocalSocket::readyRead, this, listen);
    listen();
  }
}

}  // namespace ui
