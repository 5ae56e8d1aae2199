#pragma once

#include "vexel/controls/list.h"
#include "vexel/widgets/message_box_base.h"

namespace vexel
{

/// A column of messages that grows as an application appends to it: a titled list, and any further elements below it. It
/// is as high as all of that and is seen through its parent, most often a CScrollContainer; only what shows is drawn, and
/// a change of the model measures only the lines that are new. With automatic scrolling it follows its end, unless the
/// user has scrolled away.
class VEXEL_API CEventLog : public CVertBox
{
public:
    /// The lines.
    class VEXEL_API CLogList : public CList
    {
    public:
        using CList::CList;

        int GetMeasuredCount() const { return m_MeasuredCount; }
        /// What the log shows of the list; own pixels. Left and right are the log's.
        rectangle<int> GetVisualisationRect() const;

    public:  // From CList
        int GetStartDrawingLine() const override;
        int GetEndDrawingLine() const override;
        void RecalcSize() override;  ///< Measures the new lines; as wide as the widest one ever was.
        void AfterSetModel(IItemsModel* old) override;

    private:
        void ModelChanged() { RecalcSize(); }
        void MeasureNewLines();

        int m_MeasuredCount = 0;
    };

    /// The list with an image and a title.
    class VEXEL_API CTitledLogList : public CMessageBoxTempl<CLogList>
    {
    public:
        CTitledLogList(CVisualElement* parent, size<int> const& extent, Alignment alignment);
        ~CTitledLogList() override;

        void ProcessRearrange(CVisualElement** element) override;
    };

    CEventLog(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CEventLog() override;

    // The parts, owned by the log -------------------------------------------------------------------------------------------
    CTitledLogList& GetTitledList() { return m_TitledList; }  ///< Hidden until there is a model.
    CLogList& GetList() { return m_TitledList.GetContent(); }
    CLogList const& GetList() const { return m_TitledList.GetContent(); }
    CCaption& GetText() { return m_Text; }  ///< Between the title and the lines; wraps.

    // Content ---------------------------------------------------------------------------------------------------------------
    /// The lines; not owned, a model that dies is forgotten. It tells of lines that were appended by m_SigChanged. Null: no
    /// list.
    void SetModel(IItemsModel* model);
    void Clear();  ///< Drops the model, and deletes all children but the first one and the list.
    void MoveElementBack(CVisualElement* element);  ///< A child becomes the last one.

    // Behaviour -------------------------------------------------------------------------------------------------------------
    bool IsAutoScroll() const { return m_AutoScroll; }
    void SetAutoScroll(bool on) { m_AutoScroll = on; }  ///< To the end after a change, if the end showed before it.
    bool IsScrollPending() const { return m_ScrollPending; }
    /// For all logs. True: they go to the end with their next layout; false, as at first: they lay out at once.
    static void UseAsyncAutoScroll(bool on) { s_UseAsyncAutoScroll = on; }
    static bool s_UseAsyncAutoScroll;
    int GetInitialWidth() const { return m_InitialWidth; }
    /// The width as long as there is no list. `now` false: kept, and scaled with the font; true: taken over at once, scaled
    /// by the display, unless the list shows.
    void SetInitialWidth(int width, bool now);

public:  // From CVisualElement
    void SetPos(rectangle<int> const& rect, bool force) override;
    void AttributeChanged() override;
    void ProcessRearrange(CVisualElement** element) override;
    void DrawContent(IPainter* painter) override;
    bool IsCopyToClipboardEnabled() const override { return true; }

private:
    bool IsEndInView() const;

    bool m_Built = false;  // all parts live; before them, since they call back
    CTitledLogList m_TitledList;
    CCaption m_Text;
    int m_InitialWidth = 0;  // unscaled
    bool m_AutoScroll = false;
    bool m_ScrollPending = false;
};

}  // namespace vexel
