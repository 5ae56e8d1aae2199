#include "vexel/widgets/expander_logic.h"

#include "vexel/widgets/expander.h"

namespace vexel
{

namespace
{

int const g_StepsOfBody = 4;

struct SExtents
{
    int frame;
    int title;
    int body;

    int GetSum(bool withBody) const
    {
        int const closed = AddSaturated(frame, title);
        return withBody ? AddSaturated(closed, body) : closed;
    }
};

size<int> GetExtent(CVisualElement const* part)
{
    return part ? part->GetSize() : size<int>();
}

SExtents GetHeights(CExpander const& expander)
{
    rectangle<int> const& offset = expander.GetOffset();
    rectangle<int> const& content = expander.GetContentOffset();
    return {AddSaturated(AddSaturated(offset.top, offset.bottom), AddSaturated(content.top, content.bottom)),
            GetExtent(expander.GetTitle()).height, GetExtent(expander.GetBody()).height};
}

SExtents GetWidths(CExpander const& expander)
{
    rectangle<int> const& offset = expander.GetOffset();
    rectangle<int> const& content = expander.GetContentOffset();
    return {AddSaturated(AddSaturated(offset.left, offset.right), AddSaturated(content.left, content.right)),
            GetExtent(expander.GetTitle()).width, GetExtent(expander.GetBody()).width};
}

// False: a slot has deleted the expander.
bool ShowBody(CExpander& expander, bool show)
{
    CAliveGuard const alive(&expander);
    if (CVisualElement* const body = expander.GetBody())
        body->SetVisible(show);
    return alive.IsAlive();
}

/// What the next step comes to.
struct SStep
{
    int extent;
    bool done;
};

SStep GetStep(SExtents const& extents, int present, bool opening)
{
    int const step = extents.body / g_StepsOfBody;
    if (opening)
    {
        int const next = AddSaturated(present, step);
        int const end = extents.GetSum(true);
        return next >= end ? SStep{end, true} : SStep{next, false};
    }
    int const next = SubtractSaturated(present, step);
    int const end = extents.GetSum(false);
    return next < end ? SStep{end, true} : SStep{next, false};
}

}  // namespace

CExpanderLogic::~CExpanderLogic() = default;

bool CExpanderLogic::IsExpanded(CExpander const* expander) const
{
    return expander->GetBody() && expander->GetBody()->IsVisible();
}

void CExpanderLogic::UpdateTitle(CExpander* expander, CVisualElement* title)
{
    if (!title)
        return;
    CAlivePtr<CVisualElement> const part(title);
    CAlivePtr<CVisualElement> const owner(expander);
    title->SetAlignment(GetTitleAlignment());
    if (part && owner)
        part->ReParent(owner.get(), true);
}

void CExpanderLogic::UpdateBody(CExpander* expander, CVisualElement* body)
{
    if (!body)
        return;
    CAlivePtr<CVisualElement> const part(body);
    CAlivePtr<CVisualElement> const owner(expander);
    body->SetAlignment(alClient);
    if (part && owner)
        part->ReParent(owner.get(), true);
}

void CVertExpanderLogic::Expand(CExpander* expander, bool expand)
{
    if (ShowBody(*expander, expand))
        expander->SetHeight(GetHeights(*expander).GetSum(expand), false);
}

bool CVertExpanderLogic::UpdateSize(CExpander* expander, bool opening)
{
    SStep const step = GetStep(GetHeights(*expander), expander->GetSize().height, opening);
    CAliveGuard const alive(expander);
    expander->SetHeight(step.extent, false);
    if (alive && step.done && !opening)
        ShowBody(*expander, false);
    return step.done;
}

void CHorzExpanderLogic::Expand(CExpander* expander, bool expand)
{
    if (ShowBody(*expander, expand))
        expander->SetWidth(GetWidths(*expander).GetSum(expand), false);
}

bool CHorzExpanderLogic::UpdateSize(CExpander* expander, bool opening)
{
    SStep const step = GetStep(GetWidths(*expander), expander->GetSize().width, opening);
    CAliveGuard const alive(expander);
    expander->SetWidth(step.extent, false);
    if (alive && step.done && !opening)
        ShowBody(*expander, false);
    return step.done;
}

}  // namespace vexel
