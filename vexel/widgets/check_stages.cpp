#include "vexel/widgets/check_stages.h"

#include "vexel/core/alive_guard.h"

#include <algorithm>

namespace vexel
{

IStageNotify::~IStageNotify() = default;

ICheckStage::~ICheckStage() = default;

CCheckStages::~CCheckStages()
{
    CAliveLink::Forget(this);
}

void CCheckStages::AddStage(ICheckStage* stage, int position)
{
    if (!stage)
        return;
    if (position < 0 || position >= GetStageCount())
        m_Stages.push_back(stage);
    else
        m_Stages.insert(m_Stages.begin() + position, stage);
}

void CCheckStages::RemoveStage(ICheckStage* stage)
{
    auto const found = std::find(m_Stages.begin(), m_Stages.end(), stage);
    if (found != m_Stages.end())
        m_Stages.erase(found);
}

void CCheckStages::Clear()
{
    m_Stages.clear();
}

void CCheckStages::StartProcessing()
{
    m_CurrentStage = -1;
    Complete(true);
}

void CCheckStages::Complete(bool ok)
{
    if (!ok)
        return m_Aborted();
    ++m_CurrentStage;
    if (m_CurrentStage < GetStageCount())
    {
        CAlivePtr<CCheckStages> const alive(this);
        m_StageStarting(m_CurrentStage);
        if (!alive)
            return;
        if (m_CurrentStage >= 0 && m_CurrentStage < GetStageCount())
            return m_Stages[static_cast<std::size_t>(m_CurrentStage)]->Process(this);
    }
    m_Finished();
}

}  // namespace vexel
