#pragma once

#include "vexel/core/element_observer.h"

#include <set>
#include <string>

namespace vexel::test
{

/// Knows the living elements and hands on which one is painted.
class CElementWatch : public IElementObserver
{
public:
    static CElementWatch& Get();

    void Install();
    /// What lives now does not count.
    void ForgetAll() { m_Elements.clear(); }
    std::set<CVisualElement*> const& GetElements() const { return m_Elements; }

    void ElementMade(CVisualElement* element) override { m_Elements.insert(element); }
    void ElementPainted(CVisualElement* element, vexelbase::IPainter* painter) override;
    void ElementGone(CVisualElement* element) override;

private:
    std::set<CVisualElement*> m_Elements;
};

} // namespace vexel::test
