#pragma once

#include "vexel/platform/base_window.h"

#include <utility>

namespace vexelbase::qt
{

/// Gives others of the backend the report that windows make of a stray exception.
class CExceptionReport : private CBaseWindow
{
public:
    using CBaseWindow::ReportException;
};

/// Runs an entry from the Qt loop: nothing thrown in it goes further.
template <class Work> void Guarded(Work&& work)
{
    try
    {
        std::forward<Work>(work)();
    }
    catch (...)
    {
        CExceptionReport::ReportException();
    }
}

}  // namespace vexelbase::qt
