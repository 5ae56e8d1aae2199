#pragma once

#include "gallery/frame/page.h"
#include "gallery/frame/table.h"

namespace gallery
{

class CGridPage : public CPage, public subscriber_base_t
{
public:
    CGridPage();
    ~CGridPage() override;

    void Build(CVisualElement* parent) override;

private:
    void SectionClicked(CSimpleHeader* header, int section);
    void SectionMoved(CSimpleHeader* header, int from, int to);
    void RepaintAll();

    CTextHeaderModel m_Columns;
    CTextGrid* m_Grid = nullptr;
};

}  // namespace gallery
