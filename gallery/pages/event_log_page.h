#pragma once

#include "examples/workbench/log_lines.h"
#include "examples/workbench/messages.h"
#include "gallery/frame/page.h"

namespace vexel
{
class CButton;
class CEventLog;
class CGaugeBox;
}  // namespace vexel

namespace gallery
{

class CToggle;

class CEventLogPage : public CPage, public subscriber_base_t
{
public:
    void Build(CVisualElement* parent) override;

private:
    void AddLine(CButton*);
    void AddMany(CButton*);
    void AddBox(CButton*);
    void Clear(CButton*);
    void FollowToggled(CToggle*, bool on);
    std::string MakeLine(int number) const;

    workbench::CMessageSetUp m_SetUp;
    workbench::CLogLines m_Lines;
    CEventLog* m_Log = nullptr;
};

}  // namespace gallery
