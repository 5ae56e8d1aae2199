#pragma once

#include "gallery/frame/page.h"

namespace vexel
{
class CButton;
class CNotebook;
}  // namespace vexel

namespace gallery
{

class CNotebookPage : public CPage, public subscriber_base_t
{
public:
    void Build(CVisualElement* parent) override;

private:
    CButton* AddButton(CVisualElement* row, std::string const& caption);
    CVisualElement* MakePage();
    void Turn(int step);
    void Back(CButton*) { Turn(-1); }
    void Forth(CButton*) { Turn(1); }
    void Add(CButton*);
    void Remove(CButton*);
    void Replace(CButton*);
    void Tell();

    CNotebook* m_Notebook = nullptr;
    int m_Made = 0;
};

}  // namespace gallery
