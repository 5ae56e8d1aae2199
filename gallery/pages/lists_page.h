#pragma once

#include "gallery/frame/page.h"
#include "gallery/frame/table.h"

#include <deque>

namespace gallery
{

class CListsPage : public CPage
{
public:
    ~CListsPage() override;

    void Build(CVisualElement* parent) override;

private:
    CEqualItemsViewModel m_EqualItems;
    CDefaultColumnViewModel m_PixelItems;
};

}  // namespace gallery
