#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"

#include <cstddef>

namespace vexel
{

/// The chain of all guards on the stack, innermost first. An object that can be guarded calls Forget in its destructor.
/// Being guarded costs an object nothing. Guards are automatic variables only; all belongs to the GUI thread.
class VEXEL_API CAliveLink
{
public:
    CAliveLink(CAliveLink const&) = delete;
    CAliveLink& operator=(CAliveLink const&) = delete;

    /// The object is dying: no guard points to it any more, nor into its first `bytes`. To be called first thing in its
    /// destructor; the address must be the one that guards were given.
    static void Forget(void const* object, std::size_t bytes = 1)
    {
        if (s_Innermost)
            ForgetInChain(object, bytes);
    }

protected:
    explicit CAliveLink(void const* object) : m_Object(object), m_Outer(s_Innermost) { s_Innermost = this; }
    ~CAliveLink() { s_Innermost = m_Outer; }

    [[noreturn]] static void Cancel();  ///< Throws vexel::cancel_processing.

    void const* m_Object;

private:
    static void ForgetInChain(void const* object, std::size_t bytes);

    CAliveLink* const m_Outer;

    static CAliveLink* s_Innermost;
};

/// A pointer on the stack that becomes null when its object dies. Whoever calls a slot or handler and afterwards touches
/// an object again holds one of these on it, since slots may delete anything:
///
///     CAliveGuard alive(this);
///     m_SigClick(this, x, y, keys, button);
///     alive.Check();
///
/// T is the class whose destructor calls CAliveLink::Forget(this).
template <class T> class CAlivePtr : public CAliveLink
{
public:
    explicit CAlivePtr(T* object) : CAliveLink(object) {}

    T* get() const { return static_cast<T*>(const_cast<void*>(m_Object)); }
    T* operator->() const { return get(); }
    explicit operator bool() const { return m_Object != nullptr; }
    bool IsAlive() const { return m_Object != nullptr; }

    /// Takes another object; null is legal.
    void Watch(T* object) { m_Object = object; }
    /// Ends the chain under way by vexel::cancel_processing if the object is dead (or null was given).
    void Check() const
    {
        if (!m_Object) [[unlikely]]
            Cancel();
    }
};

/// Guards an element, most often the one whose operation runs.
using CAliveGuard = CAlivePtr<CVisualElement const>;

} // namespace vexel
