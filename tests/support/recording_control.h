#pragma once

#include "tests/support/call_log.h"
#include "vexel/core/control.h"
#include "vexel/core/drag_drop.h"

/// A host without a window of its own that only writes down what elements ask of it. It counts the waiting repaints as
/// a real one does, so that an element finds its place in the list. Must outlive the tree.
class CRecordingControl : public vexel::IControl
{
public:
    explicit CRecordingControl(CCallLog& log) : m_Log(log) {}

    vexel::ISysWindow* m_Window = nullptr;
    vexel::CVisualElement* m_MouseElement = nullptr;
    int m_UpdatesCount = 0;

    void SetCapture(vexel::CVisualElement* element) override { Note("SetCapture", m_Log.NameOf(element)); }
    vexel::CVisualElement* GetCapture() override { return nullptr; }
    vexel::ISysWindow* GetWindow() override { return m_Window; }
    vexel::IImageList* GetImageList() override { return nullptr; }
    void SetImageList(vexel::IImageList*) override {}
    int GetUpdatesLastPos() const override { return m_UpdatesCount; }
    void ClearUpdates(int keep) override
    {
        Note("ClearUpdates", std::to_string(keep));
        m_UpdatesCount = keep;
    }
    void StartDragging(vexel::CVisualElement*, vexel::DragInfo const&) override {}
    vexel::size<int> GetDragStartSensitivity() const override { return {2, 2}; }
    void SetDragStartSensitivity(vexel::size<int> const&) override {}
    bool IsClicked() const override { return false; }
    void ScrollContent(int dx, int dy, vexel::screen_rectangle<int> const& area) override
    {
        Note("ScrollContent", std::to_string(dx) + ", " + std::to_string(dy) + ", " +
                                  Text({area.left, area.top, area.right, area.bottom}));
    }
    void ForceRearrange() override { Note("ForceRearrange"); }
    bool IsRearrangeNeeded() const override { return false; }
    void LockRearrange(bool) override {}
    vexel::CVisualElement* GetMouseElement() override { return m_MouseElement; }
    vexel::CVisualElement* GetFocusedElement() override { return nullptr; }
    vexel::CVisualElement* GetFocussingElement() override { return nullptr; }
    void SetFocusedElement(vexel::CVisualElement* element, bool) override
    {
        Note("SetFocusedElement", m_Log.NameOf(element));
    }
    void SetTabHandler(vexel::CVisualElement*) override {}
    void UpdateElement(vexel::CVisualElement* element, vexel::UpdateType type) override
    {
        Note("UpdateElement", m_Log.NameOf(element) + ", " + std::to_string(type));
        if (type & vexel::utElement)
            ++m_UpdatesCount;
    }
    void RearrangeElement(vexel::CVisualElement* element) override { Note("RearrangeElement", m_Log.NameOf(element)); }
    bool IsTabKeyProcessing() const override { return false; }
    void ActivateHelp(std::string const&) const override {}
    void SetMouseElement(vexel::CVisualElement*) override {}
    vexel::CVisualElement* GetDraggedElement() const override { return nullptr; }
    void SetDragTarget(vexel::CVisualElement*) override {}
    vexel::CVisualElement* GetDragTarget() const override { return nullptr; }

private:
    void Note(std::string const& what, std::string const& arguments = "") { m_Log.Add("control", what, arguments); }

    CCallLog& m_Log;
};
