#pragma once

#include "tests/support/call_log.h"
#include "vexel/core/visual_element.h"

#include <functional>
#include <optional>
#include <string>

/// An element that writes the calls of its overridable operations into a log, and answers what the test wants.
class CRecordingElement : public vexel::CVisualElement
{
public:
    CRecordingElement(CCallLog& log, std::string const& name, vexel::CVisualElement* parent = nullptr,
                      vexel::size<int> const& extent = {10, 10}, vexel::Alignment alignment = vexel::alNone);

    std::string const& GetName() const { return m_Name; }

    // Answers ---------------------------------------------------------------------------------------------------------
    std::function<void(vexel::CVisualElement**)> m_OnChange;                       ///< Inside ProcessChange.
    std::function<bool(vexel::CVisualElement*, vexel::UpdateType)> m_BeforeChange;  ///< BeforeProcessChange.
    std::function<void(vexel::CVisualElement**)> m_OnRearrange;                    ///< Inside ProcessRearrange.
    std::function<void()> m_OnUpdateElement;
    std::function<void()> m_OnRefreshPos;
    std::function<void()> m_OnScrollContent;
    std::function<void(char const* operation)> m_OnHandler;  ///< Inside the handlers of input, focus and life.
    std::optional<vexel::rectangle<int>> m_ContentRect;
    std::optional<bool> m_FullRepainted;
    vexel::rectangle<int> m_DrawBounds;
    vexel::ICustomPalette* m_Palette = nullptr;
    std::string m_Text;
    bool m_Transparent = false;
    bool m_ScrollableOnSetPos = true;
    bool m_ScrollAnswer = false;
    bool m_CopyEnabled = false;
    std::optional<bool> m_CopyAnswer;  ///< HandleCopyToClipboard; unset: the default one.
    bool m_Consume = false;            ///< What the handlers of input answer.

    // From CVisualElement: geometry, look, painting
    void SetSize(vexel::size<int> const& extent, bool scale) override;
    void SetPos(vexel::rectangle<int> const& rect, bool force) override;
    vexel::rectangle<int> GetContentRect() const override;
    bool IsFullRepainted() const override;
    bool IsTransparent() const override { return m_Transparent; }
    vexel::rectangle<int> GetDrawBounds() const override { return m_DrawBounds; }
    bool IsCopyToClipboardEnabled() const override { return m_CopyEnabled; }
    void DrawContent(vexel::IPainter* painter) override;
    vexel::ICustomPalette* GetCustomPalette() const override { return m_Palette; }

    // From CVisualElement: change and layout
    void UpdateElement() override;
    bool ScrollContent(int dx, int dy) override;
    bool IsScrollableOnSetPos() const override { return m_ScrollableOnSetPos; }
    void ProcessSetControl(vexel::IControl* control) override;
    void AfterSetControl() override;
    void SetCoordSystem(vexel::IPainter* painter) override;
    void SysColorsChanged() override;
    void AttributeChanged() override;
    void ProcessSetVisible(bool visible) override;
    void ProcessSetParentVisible(bool visible) override;
    void AddNewChild(vexel::CVisualElement* child) override;
    void ChangeParent(vexel::CVisualElement* oldParent) override;

    // From CVisualElement: input, focus and life
    bool HandleMouseMove(int x, int y, int keys, vexel::MouseButton button) override;
    bool HandleButtonDown(int x, int y, int keys, vexel::MouseButton button) override;
    bool HandleButtonUp(int x, int y, int keys, vexel::MouseButton button) override;
    bool HandleDoubleClick(int x, int y, int keys, vexel::MouseButton button) override;
    bool HandleWheel(int x, int y, int keys, vexel::MouseButton button, int delta) override;
    void HandleMouseLeave(vexel::CVisualElement* next) override;
    bool HandleKeyDown(int keys, int key) override;
    bool HandleKeyUp(int keys, int key) override;
    bool HandleChar(char character) override;
    bool HandleOnTooltip(vexel::CTooltipEvent* event) override;
    bool HandleOnTooltipTrack(vexel::CTooltipEvent* event) override;
    bool HandleContextMenu(int x, int y) override;
    void HandleLostFocus(vexel::CVisualElement* next) override;
    void HandleControlChangeFocus(bool focused) override;
    void HandleControlDestroy() override;
    void HandleRefreshPos() override;
    void ProcessRearrange(vexel::CVisualElement** element) override;
    void ProcessChange(vexel::CVisualElement** element) override;
    bool BeforeProcessChange(vexel::CVisualElement* element, vexel::UpdateType type) override;
    std::string HandleAsString() const override;
    bool HandleCopyToClipboard() const override;

protected:
    void Note(std::string const& what, std::string const& arguments = "") const { m_Log.Add(m_Name, what, arguments); }
    bool Handled(char const* what, std::string const& arguments);

    CCallLog& m_Log;
    std::string m_Name;
};
