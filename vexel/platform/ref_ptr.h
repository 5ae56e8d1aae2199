#pragma once

#include "vexel/export.h"

#include <atomic>
#include <cstddef>
#include <utility>

namespace vexelbase
{

/// Root of everything that is shared by counting references. The count starts at 0, so the first vexel_ptr owns the
/// object; it is deleted when the last reference goes. Counting is safe from any thread.
class VEXEL_API CBase
{
public:
    CBase() = default;
    CBase(CBase const&) = delete;
    CBase& operator=(CBase const&) = delete;
    virtual ~CBase();

    virtual void AddRef();
    virtual void Release();

    int GetRefCount() const { return m_RefCount.load(std::memory_order_relaxed); }

private:
    std::atomic<int> m_RefCount{0};
};

/// Deletes an object that was never shared, or gives up a shared one's reference; null does nothing.
VEXEL_API void DeleteBase(CBase* object);

/// A pointer that may hold a reference. A copy of one that holds a reference holds one of its own; a borrowed pointer
/// (Borrow) holds none and must not outlive its object.
template <class T> class vexel_ptr
{
public:
    constexpr vexel_ptr() = default;
    constexpr vexel_ptr(std::nullptr_t) {}
    /// Takes a reference.
    explicit vexel_ptr(T* object) : m_Object(object), m_HoldsReference(object != nullptr)
    {
        if (m_HoldsReference)
            object->AddRef();
    }
    vexel_ptr(vexel_ptr const& other) : m_Object(other.m_Object), m_HoldsReference(other.m_HoldsReference)
    {
        if (m_HoldsReference)
            m_Object->AddRef();
    }
    vexel_ptr(vexel_ptr&& other) noexcept
        : m_Object(std::exchange(other.m_Object, nullptr)),
          m_HoldsReference(std::exchange(other.m_HoldsReference, false))
    {}
    template <class U>
    vexel_ptr(vexel_ptr<U> const& other) : m_Object(other.get()), m_HoldsReference(other.HoldsReference())
    {
        if (m_HoldsReference)
            m_Object->AddRef();
    }
    ~vexel_ptr() { Drop(); }

    vexel_ptr& operator=(vexel_ptr other) noexcept
    {
        std::swap(m_Object, other.m_Object);
        std::swap(m_HoldsReference, other.m_HoldsReference);
        return *this;
    }

    /// A pointer without a reference.
    static vexel_ptr Borrow(T* object)
    {
        vexel_ptr result;
        result.m_Object = object;
        return result;
    }

    T* get() const { return m_Object; }
    T* operator->() const { return m_Object; }
    T& operator*() const { return *m_Object; }
    explicit operator bool() const { return m_Object != nullptr; }
    bool HoldsReference() const { return m_HoldsReference; }
    void reset() { *this = vexel_ptr(); }

    friend bool operator==(vexel_ptr const& a, vexel_ptr const& b) { return a.m_Object == b.m_Object; }
    friend bool operator==(vexel_ptr const& a, T const* b) { return a.m_Object == b; }

private:
    void Drop()
    {
        if (m_HoldsReference)
            m_Object->Release();
    }

    T* m_Object = nullptr;
    bool m_HoldsReference = false;
};

/// A new object with its first reference.
template <class T, class... Args> vexel_ptr<T> MakeRef(Args&&... args)
{
    return vexel_ptr<T>(new T(std::forward<Args>(args)...));
}

}  // namespace vexelbase
