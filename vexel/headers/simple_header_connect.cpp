// The model's side of the connection, apart from the model so that this needs no header element.

#include "vexel/headers/simple_header.h"

namespace vexel
{

void CSimpleHeaderModel::ConnectHeader(CSimpleHeader* header)
{
    if (header)
        header->m_SigSectionMoved.connect(this, &CSimpleHeaderModel::OnMoveSection);
}

void CSimpleHeaderModel::DisconnectHeader(CSimpleHeader* header)
{
    if (header)
        header->m_SigSectionMoved.disconnect(this, &CSimpleHeaderModel::OnMoveSection);
}

}  // namespace vexel
