#pragma once

#include "gallery/frame/page.h"
#include "gallery/frame/page_list.h"
#include "gallery/frame/panel.h"
#include "gallery/frame/toggle.h"
#include "vexel/core/base_control.h"

#include <functional>
#include <memory>
#include <string>

namespace gallery
{

/// What is around every page: the list of pages, title and sentence, three switches, and the line that tells what
/// happened last. Fills a control's tree.
class CFrame : public subscriber_base_t
{
public:
    /// What only the program can do; either may be empty, then its switch is not there.
    struct SHooks
    {
        std::function<void(double)> setScale;
        std::function<void(bool)> setShowRepaints;
    };

    /// What outlives a frame that is made anew.
    struct SState
    {
        int page = 0;
        bool enabled = true;
        bool twice = false;
        bool repaints = false;
    };

    CFrame(CBaseControl& control, SHooks hooks, SState const& state);
    ~CFrame() override;

    SState GetState() const;
    void SetPage(int index);
    CVisualElement* GetPageArea() const { return m_Area; }  ///< Holds the page's elements.
    CToggle* GetEnableSwitch() const { return m_Enable; }
    CToggle* GetScaleSwitch() const { return m_Scale; }       ///< Null without the hook.
    CToggle* GetRepaintSwitch() const { return m_Repaints; }  ///< Null without the hook.

private:
    void Build(SState const& state);
    void BuildPage();
    void PageChosen(CPageList* list, int index);
    void EnableToggled(CToggle* toggle, bool on);
    void ScaleToggled(CToggle* toggle, bool on);
    void RepaintsToggled(CToggle* toggle, bool on);
    void LineWritten(std::string const& line);

    CBaseControl& m_Control;
    SHooks const m_Hooks;
    std::unique_ptr<CPage> m_Page;
    // Elements of the control's tree.
    CPageList* m_List = nullptr;
    CLabel* m_Title = nullptr;
    CLabel* m_Sentence = nullptr;
    CToggle* m_Enable = nullptr;
    CToggle* m_Scale = nullptr;
    CToggle* m_Repaints = nullptr;
    CLabel* m_Line = nullptr;
    CPanel* m_Area = nullptr;
};

/// Enables or disables an element and all below it.
void EnableAll(CVisualElement* element, bool enabled);

}  // namespace gallery
