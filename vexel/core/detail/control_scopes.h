#pragma once

#include "vexel/core/alive_guard.h"
#include "vexel/core/base_control_imp.h"
#include "vexel/platform/painter.h"

#include <exception>

namespace vexel
{

/// A layout pass under way: the entries it goes through. What dies meanwhile is taken out of them.
struct CBaseControlImp::SPass
{
    explicit SPass(CBaseControlImp* control) : m_Control(control), m_Outer(control->m_Passes)
    {
        control->m_Passes = this;
        m_Entries.TakeFrom(control->m_SpareEntries);
    }
    ~SPass()
    {
        if (!m_Control)
            return;
        m_Control->m_Passes = m_Outer;
        m_Entries.Clear(0);
        m_Control->m_SpareEntries.TakeFrom(m_Entries);
    }
    SPass(SPass const&) = delete;
    SPass& operator=(SPass const&) = delete;

    CAlivePtr<CBaseControlImp> m_Control;
    SPass* const m_Outer;
    CElementList m_Entries;
};

/// A flag of the control that is set for a scope.
class CBaseControlImp::CFlagScope
{
public:
    CFlagScope(CBaseControlImp* control, bool CBaseControlImp::*flag) : m_Control(control), m_Flag(flag)
    {
        control->*flag = true;
    }
    ~CFlagScope()
    {
        if (m_Control)
            m_Control.get()->*m_Flag = false;
    }
    CFlagScope(CFlagScope const&) = delete;
    CFlagScope& operator=(CFlagScope const&) = delete;

private:
    CAlivePtr<CBaseControlImp> m_Control;
    bool CBaseControlImp::*m_Flag;
};

/// Where a layout ends by an exception, nobody knows how far it came: the next paint makes all of it anew.
class CBaseControlImp::CLayoutDebt
{
public:
    explicit CLayoutDebt(CBaseControlImp* control) : m_Control(control), m_Exceptions(std::uncaught_exceptions()) {}
    ~CLayoutDebt()
    {
        if (!m_Control || std::uncaught_exceptions() == m_Exceptions)
            return;
        m_Control->m_RearrangeNeeded = true;
        m_Control->m_FullUpdate = true;
        m_Control->m_Rearranges.Clear(0);  // without entries the whole tree is laid out
    }
    CLayoutDebt(CLayoutDebt const&) = delete;
    CLayoutDebt& operator=(CLayoutDebt const&) = delete;

private:
    CAlivePtr<CBaseControlImp> m_Control;
    int const m_Exceptions;
};

namespace detail
{

/// A paint bracket that is closed on every way out, unless the painter has gone.
class CPaintBracket
{
public:
    explicit CPaintBracket(CAlivePtr<IPainter> const& painter) : m_Painter(painter)
    {
        m_Painter->BeginPaint(IPainter::ssPaint);
    }
    ~CPaintBracket() { Close(); }
    CPaintBracket(CPaintBracket const&) = delete;
    CPaintBracket& operator=(CPaintBracket const&) = delete;

    void Close()
    {
        if (m_Open && m_Painter)
            m_Painter->EndPaint();
        m_Open = false;
    }

private:
    CAlivePtr<IPainter> const& m_Painter;
    bool m_Open = true;
};

}  // namespace detail

}  // namespace vexel
