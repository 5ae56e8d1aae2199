#pragma once

#include "examples/workbench/messages.h"
#include "gallery/frame/page.h"

namespace vexel
{
class CButton;
class CTitledGaugeBox;
}  // namespace vexel

namespace gallery
{

class CMessagesPage : public CPage, public subscriber_base_t
{
public:
    void Build(CVisualElement* parent) override;

private:
    CMessageBox* AddBox(CVisualElement* parent, std::string const& name, int image, char const* title,
                        char const* text);
    void Answered(CMessageBox* box, int button);
    void Cancel(CButton*);

    workbench::CMessageSetUp m_SetUp;
    CMessageBox* m_Question = nullptr;
    CTitledGaugeBox* m_Progress = nullptr;
};

}  // namespace gallery
