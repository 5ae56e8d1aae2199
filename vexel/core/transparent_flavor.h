#pragma once

#include "vexel/core/types.h"

namespace vexel
{

/// T (an element class) with a flag that says whether what stands behind it shines through.
template <class T> class CTransparentFlavor : public T
{
public:
    using T::T;

    bool IsTransparent() const override { return m_Transparent; }
    void SetTransparent(bool transparent)  ///< Repaints on a change.
    {
        if (m_Transparent == transparent)
            return;
        m_Transparent = transparent;
        this->OnChange(this, utElement);
    }

protected:
    bool m_Transparent = false;
};

}  // namespace vexel
