#include "vexel/scroll/scroll_box.h"

#include "vexel/core/control.h"
#include "vexel/platform/sys_window.h"
#include "vexel/platform/system.h"

#include <algorithm>
#include <cmath>

namespace vexel
{

namespace
{

int GetBarMetric()
{
    ISystem* const system = GetCurrentSystem();
    return system ? system->GetSystemMetric(ISystem::smScrollBarWidth) : 0;
}

// How far a model has gone since, as it must be drawn.
int GetPixels(IScrollModel* model, double before)
{
    CScrollConverter const converter(model);
    int const distance = FloorToInt(converter.L2P(model->GetStart()) - converter.L2P(before) + 0.5);
    return model->GetFrom() > model->GetTo() ? SubtractSaturated(0, distance) : distance;
}

}  // namespace

// The wrapped models ------------------------------------------------------------------------------------------------------

void CScrollBox::CInternalScrollModel::SetStepSize(double, double) const
{
    if (m_Wrapped)
        static_cast<void>(m_Wrapped->GetFrom());
    m_Owner->RefreshScroll();
}

void CScrollBox::CInternalScrollModel::SetMeasure(std::pair<double, int> measure)
{
    CAliveGuard const alive(m_Owner);
    if (m_Wrapped)
        m_Wrapped->SetMeasure(measure);
    if (alive)
        m_Owner->RefreshScroll();
}

std::pair<double, int> CScrollBox::CInternalScrollModel::GetMeasure() const
{
    return m_Wrapped ? m_Wrapped->GetMeasure() : std::pair<double, int>(1.0, 1);
}

void CScrollBox::CInternalScrollModel::Update()
{
    m_Owner->RefreshScroll();
}

void CScrollBox::CVertInternalScrollModel::SetStart(double value)
{
    CAliveGuard const alive(m_Owner);
    m_Owner->VertScroll(CScrollEvent::saSetValue, value);
    if (alive)
        m_Owner->RefreshScroll();
}

void CScrollBox::CHorzInternalScrollModel::SetStart(double value)
{
    CAliveGuard const alive(m_Owner);
    m_Owner->HorzScroll(CScrollEvent::saSetValue, value);
    if (alive)
        m_Owner->RefreshScroll();
}

// Life --------------------------------------------------------------------------------------------------------------------

CScrollBox::CScrollBox(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CScrollableElement(parent, extent, alignment), m_VertHolder(this, {0, 0}, alRight),
      m_HorzHolder(this, {0, 0}, alBottom), m_Corner(&m_VertHolder, {0, 0}, alBottom),
      m_VertBarHost(&m_VertHolder, {0, 0}, alClient), m_HorzBarHost(&m_HorzHolder, {0, 0}, alClient)
{
    CBase* const parts[] = {&m_VertHolder, &m_HorzHolder, &m_Corner, &m_VertBarHost, &m_HorzBarHost};
    for (CBase* const part : parts)
        part->SetDynamic(false);
    int const thickness = GetBarMetric();  // device pixels
    m_VertHolder.SetSize({thickness, thickness}, false);
    m_HorzHolder.SetSize({thickness, thickness}, false);
    m_VertElement.m_SigScroll.connect(this, &CScrollBox::VertScroll);
    m_HorzElement.m_SigScroll.connect(this, &CScrollBox::HorzScroll);
    CreateScrollbars(GetControl());
    RefreshScroll();
}

CScrollBox::~CScrollBox()
{
    m_VertOwner.Watch(nullptr);
    m_HorzOwner.Watch(nullptr);
    TakeWrappersBack();
}

void CScrollBox::ProcessSetControl(IControl* control)
{
    CreateScrollbars(control);
}

void CScrollBox::AfterSetControl()
{
    RefreshScroll();
}

void CScrollBox::HandleControlDestroy()
{
    ReleaseScrollbars();
}

// Bars --------------------------------------------------------------------------------------------------------------------

void CScrollBox::CreateScrollbars(IControl* control)
{
    CAliveGuard const alive(this);
    ReleaseScrollbars();
    ISysWindow* const window = alive && control ? control->GetWindow() : nullptr;
    if (!window)
        return;
    vexel_ptr<IScrollBar> const vertical = window->CreateScrollBar(ISysWindow::stVertical);
    vexel_ptr<IScrollBar> const horizontal = window->CreateScrollBar(ISysWindow::stHorizontal);
    if (!vertical || !horizontal)
        return;

    m_VertBarHost.SetNativeControl(vertical.get());
    if (!alive)
        return;
    m_VertBarHost.FitWidth();
    int const width = m_VertBarHost.GetSize().width;
    m_VertHolder.SetWidth(width, false);
    m_HorzBarHost.SetNativeControl(horizontal.get());
    if (!alive)
        return;
    m_HorzBarHost.FitHeight();
    int const height = m_HorzBarHost.GetSize().height;
    m_HorzHolder.SetHeight(height, false);
    m_Corner.SetSize({width, height}, false);

    m_VertBar = vertical.get();
    m_HorzBar = horizontal.get();
    m_VertElement.SetScrollBar(m_VertBar);
    m_HorzElement.SetScrollBar(m_HorzBar);
    if (!IsEnabled())
    {
        m_VertBar->SetEnabled(false);
        m_HorzBar->SetEnabled(false);
    }
    m_VertBar->Subscribe(&m_VertElement, typeid(IScrollBarNotify), true);
    m_HorzBar->Subscribe(&m_HorzElement, typeid(IScrollBarNotify), true);
}

void CScrollBox::ReleaseScrollbars()
{
    m_VertBar = nullptr;
    m_VertElement.SetScrollBar(nullptr);
    m_HorzBar = nullptr;
    m_HorzElement.SetScrollBar(nullptr);
    CAliveGuard const alive(this);
    m_VertBarHost.SetNativeControl(nullptr);
    if (alive)
        m_HorzBarHost.SetNativeControl(nullptr);
}

void CScrollBox::SetCornerAlways(bool always)
{
    if (always == m_CornerAlways)
        return;
    m_CornerAlways = always;
    RefreshScroll();
}

// A range that has come to fit its page goes back to its beginning by itself, past the box: how far it went.
class CScrollBox::CSnap
{
public:
    CSnap(CScrollBox* box, IScrollModel* model)
        : m_Box(box), m_Model(model), m_Start(model ? model->GetStart() : 0), m_Moves(box->m_Moves)
    {}

    int GetDistance(IScrollModel* present) const
    {
        if (!m_Model || present != m_Model || m_Box->m_Moves != m_Moves || m_Box->m_InScroll || !m_Box->m_ReportPixels)
            return 0;
        ++m_Box->m_Moves;
        return GetPixels(m_Model, m_Start);
    }

private:
    CScrollBox* const m_Box;
    IScrollModel* const m_Model;
    double const m_Start;
    unsigned const m_Moves;
};

// Whether the vertical bar is needed in a pane that is higher by `more` than it is now. False: the box is gone.
bool CScrollBox::JudgeVert(int more)
{
    CAliveGuard const alive(this);
    CVisualElement const* const pane = GetCentralPane();
    if (pane || !GetVertScroll())
    {
        CSnap const snap(this, GetVertScroll());
        m_VertElement.Recalculate(GetVertScroll(), pane ? AddSaturated(pane->GetBounds().bottom, more) : 0);
        if (int const distance = alive ? snap.GetDistance(GetVertScroll()) : 0)
            ScrollAll(0, SubtractSaturated(0, distance));
    }
    if (alive)
        m_VertHolder.SetVisible(m_VertElement.IsScrollBarVisible());
    return static_cast<bool>(alive);
}

bool CScrollBox::JudgeHorz(int more)
{
    CAliveGuard const alive(this);
    CVisualElement const* const pane = GetCentralPane();
    if (pane || !GetHorzScroll())
    {
        CSnap const snap(this, GetHorzScroll());
        m_HorzElement.Recalculate(GetHorzScroll(), pane ? AddSaturated(pane->GetBounds().right, more) : 0);
        if (int const distance = alive ? snap.GetDistance(GetHorzScroll()) : 0)
            ScrollAll(SubtractSaturated(0, distance), 0);
    }
    if (alive)
        m_HorzHolder.SetVisible(m_HorzElement.IsScrollBarVisible());
    return static_cast<bool>(alive);
}

void CScrollBox::RefreshScroll()
{
    CAliveGuard const alive(this);
    bool const vertBefore = m_VertElement.IsScrollBarVisible();
    bool const horzBefore = m_HorzElement.IsScrollBarVisible();
    // The vertical bar comes first: where it appears it narrows the pane.
    if (!JudgeVert(0) || !JudgeHorz(0))
        return;
    // Where one bar goes as the other comes, both have been judged with a bar that is there no more, or not yet. The one
    // that comes is needed only if it is beside the room that the other one leaves; else they would take turns for ever.
    bool const vertComes = !vertBefore && m_VertElement.IsScrollBarVisible();
    bool const horzComes = !horzBefore && m_HorzElement.IsScrollBarVisible();
    if (horzComes && vertBefore && !m_VertElement.IsScrollBarVisible() && !JudgeHorz(m_VertHolder.GetSize().width + 1))
        return;
    if (vertComes && horzBefore && !m_HorzElement.IsScrollBarVisible() && !JudgeVert(m_HorzHolder.GetSize().height + 1))
        return;
    bool const vertical = m_VertElement.IsScrollBarVisible();
    bool const horizontal = m_HorzElement.IsScrollBarVisible();
    if (vertical != vertBefore || horizontal != horzBefore)
        OnRearrange(this);
    if (alive)
        m_Corner.SetVisible((vertical && horizontal) || m_CornerAlways);
}

// What is scrolled ----------------------------------------------------------------------------------------------------------

void CScrollBox::SetCentralPane(CVisualElement* pane)
{
    if (!pane || pane == GetCentralPane())
        return;
    CScrollableElement::SetCentralPane(pane);
    RefreshScroll();
}

void CScrollBox::SetVertScroll(IScrollModel* model)
{
    if (model == &m_VertWrapper)
        return;
    if (!m_VertOwner.get() || m_VertOwner.get()->GetVertScroll() != model)
        m_VertOwner.Watch(nullptr);
    CScrollableElement::SetVertScroll(model);
    m_VertWrapper.SetWrapped(model);
    RefreshScroll();
}

void CScrollBox::SetHorzScroll(IScrollModel* model)
{
    if (model == &m_HorzWrapper)
        return;
    if (!m_HorzOwner.get() || m_HorzOwner.get()->GetHorzScroll() != model)
        m_HorzOwner.Watch(nullptr);
    CScrollableElement::SetHorzScroll(model);
    m_HorzWrapper.SetWrapped(model);
    RefreshScroll();
}

void CScrollBox::ConnectElement(CScrollableElement* element, ConnectionType type, bool connect)
{
    if (!element)
        return;
    CAliveGuard const alive(this);
    CAliveGuard const other(element);
    KeepConnected(element);
    if (connect)
    {
        SetCentralPane(element);
        if (!alive || !other)
            return;
        // A wrapped model has no meaning inside of its wrapping: a second connection keeps what is there.
        if ((type & ctHorizontal) && element->GetHorzScroll() != &m_HorzWrapper)
        {
            m_HorzOwner.Watch(element);
            SetHorzScroll(element->GetHorzScroll());
            if (!alive || !other)
                return;
        }
        if ((type & ctVertical) && element->GetVertScroll() != &m_VertWrapper)
        {
            m_VertOwner.Watch(element);
            SetVertScroll(element->GetVertScroll());
            if (!alive || !other)
                return;
        }
        if (type & ctVertical)
            element->SetVertScroll(&m_VertWrapper);
        if ((type & ctHorizontal) && other && alive)
            element->SetHorzScroll(&m_HorzWrapper);
        return;
    }
    if (type & ctVertical)
        element->SetVertScroll(&m_VertWrapper);
    if ((type & ctHorizontal) && other && alive)
        element->SetHorzScroll(&m_HorzWrapper);
    if ((type & ctBoth) && other && alive)
        element->SetCentralPane(GetCentralPane());
}

void CScrollBox::KeepConnected(CScrollableElement* element)
{
    // The places of those that died are taken again.
    CElementPtr<CScrollableElement>* place = nullptr;
    for (auto const& connected : m_Connected)
    {
        if (connected->get() == element)
            return;
        if (!*connected)
            place = connected.get();
    }
    if (!place)
        place = m_Connected.emplace_back(std::make_unique<CElementPtr<CScrollableElement>>()).get();
    place->Watch(element);
}

// Elements may outlive the box; its models may not be left in them.
void CScrollBox::TakeWrappersBack()
{
    for (auto const& connected : m_Connected)
    {
        if (*connected && (*connected)->GetVertScroll() == &m_VertWrapper)
            (*connected)->SetVertScroll(nullptr);
        if (*connected && (*connected)->GetHorzScroll() == &m_HorzWrapper)
            (*connected)->SetHorzScroll(nullptr);
    }
}

void CScrollBox::CModelOwner::Watch(CScrollableElement* element)
{
    if (element == m_Element)
        return;
    if (m_Element)
        m_Element->m_SigDestroy.disconnect(this, &CModelOwner::Dies);
    m_Element = element;
    if (m_Element)
        m_Element->m_SigDestroy.connect(this, &CModelOwner::Dies);
}

// Its model has gone with it.
void CScrollBox::CModelOwner::Dies(CVisualElement*)
{
    m_Element = nullptr;
    (m_Box->*m_SetModel)(nullptr);
}

// Moves -------------------------------------------------------------------------------------------------------------------

int CScrollBox::ScrollImp(IScrollModel* model, double value)
{
    if (!model || m_InScroll)
        return 0;

    class CScope
    {
    public:
        explicit CScope(CScrollBox* box) : m_Alive(box), m_Box(box) { box->m_InScroll = true; }
        ~CScope()
        {
            if (m_Alive)
                m_Box->m_InScroll = false;
        }
        CScope(CScope const&) = delete;
        CScope& operator=(CScope const&) = delete;

        CAliveGuard const m_Alive;

    private:
        CScrollBox* const m_Box;
    };

    CScope const scope(this);
    bool const isOwn = model == GetVertScroll() || model == GetHorzScroll();
    double const old = model->GetStart();
    ++m_Moves;
    model->SetStart(value);
    // Whoever heard of it may have taken the model away.
    bool const isStill = scope.m_Alive && (!isOwn || model == GetVertScroll() || model == GetHorzScroll());
    if (!isStill || !m_ReportPixels)
        return 0;
    return GetPixels(model, old);
}

void CScrollBox::VertScroll(CScrollEvent::ScrollAction, double value)
{
    CAliveGuard const alive(this);
    int const distance = ScrollImp(GetVertScroll(), value);
    if (!alive || distance == 0)
        return;
    ScrollAll(0, SubtractSaturated(0, distance));
    if (alive)
        UpdateAtOnce();
}

void CScrollBox::HorzScroll(CScrollEvent::ScrollAction, double value)
{
    CAliveGuard const alive(this);
    int const distance = ScrollImp(GetHorzScroll(), value);
    if (!alive || distance == 0)
        return;
    ScrollAll(SubtractSaturated(0, distance), 0);
    if (alive)
        UpdateAtOnce();
}

void CScrollBox::ScrollAll(int dx, int dy)
{
    if (!m_PaneMovesItself)
    {
        Scroll(dx, dy, false);
        return;
    }
    CAliveGuard const alive(this);
    for (int i = 0; alive && i < GetChildren()->GetCount(); ++i)
    {
        CVisualElement* const child = GetChildren()->GetItem(i);
        if (child == GetCentralPane())
            child->ScrollContent(dx, dy);
        else if (child->IsVisible())
            child->Scroll(dx, dy, false);
    }
}

void CScrollBox::UpdateAtOnce()
{
    ISysWindow* const window = m_UpdateAtOnce && GetControl() ? GetControl()->GetWindow() : nullptr;
    if (window)
        window->UpdateNow();
}

bool CScrollBox::HandleWheel(int, int, int, MouseButton, int delta)
{
    CAliveGuard const alive(this);
    int step = 1;
    m_SigGetWheelStep(this, step);
    alive.Check();

    bool const vertical = GetVertScroll() && m_VertElement.IsScrollBarVisible();
    if (!vertical && !(GetHorzScroll() && m_HorzElement.IsScrollBarVisible()))
        return false;
    IScrollModel const* const model = vertical ? GetVertScroll() : GetHorzScroll();
    double const old = model->GetStart();
    double const value = old - static_cast<double>(step) * delta;
    if (vertical)
        VertScroll(CScrollEvent::saLine, value);
    else
        HorzScroll(CScrollEvent::saLine, value);
    alive.Check();
    IScrollModel const* const present = vertical ? GetVertScroll() : GetHorzScroll();
    if (present == model && model->GetStart() != old)
        RefreshScroll();
    return true;
}

// From CVisualElement -------------------------------------------------------------------------------------------------------

void CScrollBox::SetPos(rectangle<int> const& rect, bool force)
{
    rectangle<int> const old = GetPos();
    CAliveGuard const alive(this);
    CScrollableElement::SetPos(rect, force);
    if (alive && (force || GetPos() != old))
        RefreshScroll();
}

void CScrollBox::SetEnabled(bool enabled)
{
    CAliveGuard const alive(this);
    CScrollableElement::SetEnabled(enabled);
    if (!alive)
        return;
    m_VertElement.SetEnabled(enabled);
    m_HorzElement.SetEnabled(enabled);
    if (enabled)
    {
        RefreshScroll();
        return;
    }
    if (m_VertBar)
        m_VertBar->SetEnabled(false);
    if (m_HorzBar)
        m_HorzBar->SetEnabled(false);
}

}  // namespace vexel
