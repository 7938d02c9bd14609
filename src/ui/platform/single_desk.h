#pragma once

#include <QLocalServer>
#include <QObject>
#include <QString>

namespace ui {

// One desk on the screen for each program folder. A second one asks the first to come to the front,
// and ends.
class SingleDesk : public QObject {
  Q_OBJECT

 public:
  enum class Place {
    kFirst,    // this desk is the one; others reach it from now on
    kSecond,   // another is there, and has come to the front
    kUnheard,  // another is there and does not answer
  };

  // The folder is a path of the host.
  explicit SingleDesk(const QString& program_folder, QObject* parent = nullptr);
  // Waits two seconds at the most.
  Place Take();
  // Where others reach this desk.
  const QString& SocketName() const { return name_; }

 signals:
  // Another desk was started on the folder.
  void Called();

 private:
  Place AskTheOther();
  void Answer();

  QString name_;
  QLocalServer server_;
};

}  // namespace ui
