#pragma once

#include <QAbstractButton>
#include <QCoreApplication>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "shell/program_folder.h"
#include "ui/app.h"
#include "ui/windows/frame_view.h"

namespace ui {

// A desk on the delivered databases with a home of its own, past its splash.
struct RunningDesk {
  explicit RunningDesk(const QString& settings = {}) {
    shell::DeliverFiles(DESK_TEST_DATA, home.path().toStdString());
    QFile file(home.filePath(QStringLiteral("settings.txt")));
    if (file.open(QIODevice::WriteOnly)) {
      file.write("Velmonte|390|SplashScreen=1\nVelmonte|390|Tips=False\n");
      file.write(settings.toUtf8());
    }
    file.close();
    app = std::make_unique<App>(home.path().toStdString(), file.fileName().toStdString());
    app->Start();
    QCoreApplication::processEvents();
  }
  FrameView& Frame() { return *qobject_cast<FrameView*>(app->ViewOf(*app->Desk().Frame())); }
  template <typename Widget>
  Widget* Find(const char* name) {
    return Frame().findChild<Widget*>(QLatin1String(name));
  }

  QTemporaryDir home;
  std::unique_ptr<App> app;
};

// Whatever takes the keyboard has a name for those who cannot see it.
inline void CheckNames(RunningDesk& desk) {
  int seen = 0;
  for (const QWidget* widget : desk.Frame().findChildren<QWidget*>()) {
    if (!(widget->focusPolicy() & Qt::TabFocus) || !widget->isVisible()) continue;
    ++seen;
    const auto* const button = qobject_cast<const QAbstractButton*>(widget);
    const bool named = !widget->accessibleName().isEmpty() || (button && !button->text().isEmpty());
    QVERIFY2(named, qPrintable(QString::fromLatin1(widget->metaObject()->className()) +
                               QLatin1Char(' ') + widget->objectName()));
  }
  QVERIFY(seen > 10);
}

// No caption of a button is cut.
inline void CheckCaptions(RunningDesk& desk) {
  int seen = 0;
  for (const QPushButton* button : desk.Frame().findChildren<QPushButton*>()) {
    if (!button->isVisible() || button->text().isEmpty()) continue;
    ++seen;
    QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->objectName()));
    QVERIFY2(button->height() >= button->fontMetrics().height(), qPrintable(button->objectName()));
  }
  QVERIFY(seen > 8);
}

}  // namespace ui
