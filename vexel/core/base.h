#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"

#include <cstddef>

namespace vexel
{

/// Root of the framework's classes that may live on the heap or by value. An object knows whether its own operator new
/// made it: a parent deletes dynamic children and only detaches others.
/// Belongs to the GUI thread.
class VEXEL_API CBase
{
public:
    static void* operator new(std::size_t bytes);
    static void* operator new(std::size_t, void* place) noexcept { return place; }
    static void operator delete(void* block) noexcept;
    static void operator delete(void*, void*) noexcept {}

    virtual ~CBase();
    CBase(CBase const&) = delete;
    CBase& operator=(CBase const&) = delete;

    bool IsDynamic() const { return m_Dynamic; }
    /// Overrules the mark. Whoever holds an element as a member says false.
    void SetDynamic(bool dynamic) { m_Dynamic = dynamic; }

protected:
    CBase();

private:
    static bool TakeMark(void const* object) noexcept;

    bool m_Dynamic;
};

}  // namespace vexel
