#include "vexel/core/base.h"

#include <new>

namespace vexel
{

bool CBase::s_NextIsDynamic = false;
void* CBase::s_NextBlock = nullptr;

void* CBase::operator new(std::size_t bytes)
{
    void* const block = ::operator new(bytes);
    s_NextIsDynamic = true;
    s_NextBlock = block;
    return block;
}

void CBase::operator delete(void* block) noexcept
{
    // An argument of the constructor threw: the mark must not reach the next object, which may stand by value.
    if (block == s_NextBlock)
    {
        s_NextIsDynamic = false;
        s_NextBlock = nullptr;
    }
    ::operator delete(block);
}

CBase::CBase() : m_Dynamic(s_NextIsDynamic)
{
    s_NextIsDynamic = false;
}

CBase::~CBase() = default;

}  // namespace vexel
