#pragma once

#include "vexel/core/visual_element.h"
#include "vexel/platform/font.h"
#include "vexel/platform/painter.h"

#include <string>
#include <utility>

namespace vexel
{

struct CVisualElement::STexts
{
    std::string m_Tooltip;
    std::string m_HelpId;
};

/// An element's own font. Elements with the same one share it, so that what it comes to is worked out once.
struct CVisualElement::SFont
{
    explicit SFont(font value) : m_Own(std::move(value)) {}

    int m_References = 1;
    font const m_Own;
    mutable font m_Default;    // the default GUI font that m_Effective was worked out from
    mutable font m_Effective;
    mutable bool m_Known = false;
};

/// Stands while an element changes its tree or dies. If a slot deletes the control meanwhile, the element and what is below
/// it forget the control.
class CVisualElement::CTransit
{
public:
    /// `alive`: a guard on the element; null in its destructor, which stands itself.
    CTransit(CVisualElement* top, CAliveGuard const* alive) : m_Top(top), m_Alive(alive), m_Outer(s_Transit)
    {
        s_Transit = this;
    }
    ~CTransit() { s_Transit = m_Outer; }
    CTransit(CTransit const&) = delete;
    CTransit& operator=(CTransit const&) = delete;

private:
    friend class CVisualElement;

    CVisualElement* const m_Top;
    CAliveGuard const* const m_Alive;
    CTransit* const m_Outer;
};

namespace detail
{

inline std::string const& NoText()
{
    static std::string const* const text = new std::string;  // outlives static elements
    return *text;
}

/// A bracket for measuring outside a paint; inside one it does nothing.
class CMeasuring
{
public:
    explicit CMeasuring(IPainter* painter) : m_Painter(painter->m_Painting ? nullptr : painter)
    {
        if (m_Painter)
            m_Painter->BeginPaint(IPainter::ssMeasure);
    }
    ~CMeasuring()
    {
        if (m_Painter)
            m_Painter->EndPaint();
    }
    CMeasuring(CMeasuring const&) = delete;
    CMeasuring& operator=(CMeasuring const&) = delete;

    bool IsOwn() const { return m_Painter != nullptr; }

private:
    IPainter* const m_Painter;
};

} // namespace detail

} // namespace vexel
