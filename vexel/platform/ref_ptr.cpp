#include "vexel/platform/ref_ptr.h"

namespace vexelbase
{

CBase::~CBase() = default;

void CBase::AddRef()
{
    m_RefCount.fetch_add(1, std::memory_order_relaxed);
}

void CBase::Release()
{
    if (m_RefCount.fetch_sub(1, std::memory_order_acq_rel) == 1)
        delete this;
}

void DeleteBase(CBase* object)
{
    if (!object)
        return;
    if (object->GetRefCount() == 0)
        delete object;
    else
        object->Release();
}

}  // namespace vexelbase
