#pragma once

#include "vexel/core/visual_element.h"

namespace vexel
{

/// A pointer to an element that somebody else owns. It becomes null when the element dies. Null is legal.
template <class T = CVisualElement> class CElementPtr : public subscriber_base_t
{
public:
    CElementPtr() = default;
    explicit CElementPtr(T* element) { Watch(element); }
    CElementPtr(CElementPtr const&) = delete;
    CElementPtr& operator=(CElementPtr const&) = delete;

    void Watch(T* element)
    {
        if (element == m_Element)
            return;
        if (m_Element)
            m_Element->m_SigDestroy.disconnect(this, &CElementPtr::ElementDies);
        m_Element = element;
        if (m_Element)
            m_Element->m_SigDestroy.connect(this, &CElementPtr::ElementDies);
    }

    T* get() const { return m_Element; }
    T* operator->() const { return m_Element; }
    T& operator*() const { return *m_Element; }
    explicit operator bool() const { return m_Element != nullptr; }

private:
    void ElementDies(CVisualElement*) { m_Element = nullptr; }

    T* m_Element = nullptr;
};

}  // namespace vexel
