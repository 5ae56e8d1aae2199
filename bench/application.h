#pragma once

#include "vexel/platform/qt/application.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

// What benchmarks with windows share.
namespace bench
{

/// One application for all cases of a program; never destroyed, as widgets of static benchmarks may outlive main.
inline void StartApplication()
{
    static int argc = 1;
    static char name[] = "bench";
    static char* argv[] = {name, nullptr};
    [[maybe_unused]] static auto* const application = new vexelbase::qt::CApplication(argc, argv);
}

/// What Qt has posted, and then what the top-level widget has to show.
inline void Flush(QWidget& top)
{
    QCoreApplication::sendPostedEvents();
    QEvent update(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&top, &update);
}

}  // namespace bench
