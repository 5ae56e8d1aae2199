#include "vexel/widgets/expander.h"

#include "vexel/core/control.h"
#include "vexel/platform/sys_window.h"
#include "vexel/platform/system.h"
#include "vexel/widgets/expander_logic.h"

namespace vexel
{

namespace
{

int const g_StepWait = 10;  // milliseconds

bool HasNoRoom(rectangle<int> const& rect)
{
    return rect.right < rect.left || rect.bottom < rect.top;
}

}  // namespace

CExpander::CExpander(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CBevel(parent, extent, alignment)
{
    SetOffset({0, 0, 0, 0});
    SetContentOffset({0, 0, 0, 0});
}

// First thing: nothing is posted any more when the rest goes.
CExpander::~CExpander()
{
    StopTask();
}

// The instances are never freed: static widgets may ask for them until the process ends.
CExpanderLogic& CExpander::GetLogic() const
{
    switch (m_Direction)
    {
    case ExpandBottomTop:
    {
        static CExpanderLogic* const upwards = new CBottomTopExpanderLogic;
        return *upwards;
    }
    case ExpandLeftRight:
    {
        static CExpanderLogic* const rightwards = new CLeftRightExpanderLogic;
        return *rightwards;
    }
    case ExpandRightLeft:
    {
        static CExpanderLogic* const leftwards = new CRightLeftExpanderLogic;
        return *leftwards;
    }
    default:
    {
        static CExpanderLogic* const downwards = new CTopBottomExpanderLogic;
        return *downwards;
    }
    }
}

// Parts ---------------------------------------------------------------------------------------------------------------------

void CExpander::DetachPart(CElementPtr<>& part)
{
    CVisualElement* const old = GetPart(part);
    part.Watch(nullptr);
    if (old)
        old->ReParent(nullptr, true);
}

void CExpander::SetTitle(CVisualElement* title)
{
    CAliveGuard const alive(this);
    CAlivePtr<CVisualElement> const fresh(title);
    DetachPart(m_Title);
    if (!alive)
        return;
    m_Title.Watch(fresh.get());
    if (fresh)
        GetLogic().UpdateTitle(this, fresh.get());
    if (alive)
        AdoptSize();
}

void CExpander::SetBody(CVisualElement* body)
{
    CAliveGuard const alive(this);
    CAlivePtr<CVisualElement> const fresh(body);
    DetachPart(m_Body);
    if (!alive)
        return;
    m_Body.Watch(fresh.get());
    if (fresh)
        GetLogic().UpdateBody(this, fresh.get());
    if (alive)
        AdoptSize();
}

void CExpander::SetExpandDirection(ExpandDirection direction)
{
    if (direction == m_Direction)
        return;
    m_Direction = direction;
    DetachPart(m_Title);
}

// Steps under way take what the parts ask for by themselves.
void CExpander::AdoptSize()
{
    if (m_Sizing == SizingNone)
        GetLogic().Expand(this, IsExpanded());
}

// A body that is left without extent covers nothing: amid the steps that may be a line of pixels that shows the frame.
void CExpander::SetPos(rectangle<int> const& rect, bool force)
{
    CAliveGuard const alive(this);
    CBevel::SetPos(rect, force);
    if (!alive || !GetBody() || !GetBody()->IsVisible())
        return;
    rectangle<int> const bounds = GetBody()->GetBounds();
    if (bounds.right <= 0 || bounds.bottom <= 0)
        OnChange(this, utElement);
}

void CExpander::ProcessRearrange(CVisualElement** element)
{
    CVisualElement* const body = GetBody();
    if (*element && (*element == GetTitle() || *element == body))
    {
        AdoptSize();
        return;
    }
    // On its own, a body without room would be laid out over the title and beside the frame.
    if (body && IsAncestor(*element, body) && HasNoRoom(body->GetPos()))
        *element = body;
}

// State ---------------------------------------------------------------------------------------------------------------------

void CExpander::Expand(bool expand, bool animated)
{
    CAliveGuard const alive(this);
    if (animated)
    {
        m_Sizing = expand ? SizingOpens : SizingCloses;
        StartTask();
    }
    else
    {
        if (m_Sizing != SizingNone)
            StopSizing();
        GetLogic().Expand(this, expand);
    }
    if (alive)
        HandleExpand(expand);
}

bool CExpander::IsExpanded() const
{
    return GetLogic().IsExpanded(this) ? m_Sizing != SizingCloses : m_Sizing == SizingOpens;
}

void CExpander::UpdateSize()
{
    // A step that was posted before the end still comes.
    if (m_Sizing == SizingNone)
        return;
    CAliveGuard const alive(this);
    int const sizing = m_Sizing;
    bool const opening = sizing == SizingOpens;
    bool const done = GetLogic().UpdateSize(this, opening);
    if (!alive || m_Sizing != sizing)
        return;
    if (opening && GetBody())
    {
        GetBody()->SetVisible(true);
        if (!alive || m_Sizing != sizing)
            return;
    }
    if (done)
        StopSizing();  // one that closes has hidden the body by now
}

void CExpander::StopSizing()
{
    StopTask();
    m_Sizing = SizingNone;
}

// The task ------------------------------------------------------------------------------------------------------------------

void CExpander::StartTask()
{
    ISysWindow* const window = GetControl() ? GetControl()->GetWindow() : nullptr;
    if (!GetTaskSynchronizer())
        SetSynchronizer(window);
    if (!GetTaskSynchronizer())
        return;
    ISystem* const system = GetCurrentSystem();
    if (!GetTaskRunner() && system)
    {
        m_OwnRunner = system->GetRunner();
        SetRunner(m_OwnRunner.get());
    }
    if (GetTaskRunner() && !GetTaskRunner()->IsRunning())
        Execute();
}

void CExpander::StopTask()
{
    Stop();
    SetSynchronizer(nullptr);
    m_OwnRunner.reset();
}

bool CExpander::InternalProcessData()
{
    if (IRunner* const runner = GetTaskRunner())
        runner->SetWait(g_StepWait);
    return m_Sizing != SizingNone;
}

void CExpander::InitUpdater(CRunnableProxy* proxy)
{
    proxy->m_SigRun.connect(this, &CExpander::UpdateSize);
}

void CExpander::ProcessSetControl(IControl*)
{
    StopTask();
}

// What was under way goes on in the new window.
void CExpander::AfterSetControl()
{
    if (m_Sizing != SizingNone)
        StartTask();
}

void CExpander::HandleControlDestroy()
{
    StopTask();
}

}  // namespace vexel
