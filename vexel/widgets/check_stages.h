#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/signals/signal.h"

#include <vector>

namespace vexel
{

/// Whom a stage tells of its end.
class VEXEL_API IStageNotify
{
public:
    virtual ~IStageNotify();
    virtual void Complete(bool ok) = 0;  ///< False: the check has failed, nothing may go on.
};

/// One check, which may take as long as it wants.
class VEXEL_API ICheckStage
{
public:
    virtual ~ICheckStage();
    /// Begins the check. `notify` is told of its end once, at once or later; null: nobody.
    virtual void Process(IStageNotify* notify) = 0;
};

/// A chain of checks, one after the other. Each begins when the one before has passed. Stages are not owned and must live
/// as long as they are in the chain. May be deleted in any of its signals and by a stage.
class VEXEL_API CCheckStages : public IStageNotify
{
public:
    CCheckStages() = default;
    CCheckStages(CCheckStages const&) = delete;
    CCheckStages& operator=(CCheckStages const&) = delete;
    ~CCheckStages() override;

    signal_t<> m_Finished;          ///< All stages have passed.
    signal_t<> m_Aborted;           ///< A stage has failed.
    signal_t<int> m_StageStarting;  ///< The stage with this number is about to run; a slot may change the chain.

    /// Before the stage that stands at `position`, or at the end if there is none. Null is ignored.
    void AddStage(ICheckStage* stage, int position = -1);
    void RemoveStage(ICheckStage* stage);  ///< The first such one.
    void Clear();
    int GetStageCount() const { return static_cast<int>(m_Stages.size()); }
    int GetCurrentStage() const { return m_CurrentStage; }  ///< -1 before the first.
    /// From the first stage on. An empty chain finishes at once.
    void StartProcessing();

public:                               // From IStageNotify
    void Complete(bool ok) override;  ///< The present stage has ended: goes on with the next one, or aborts.

private:
    int m_CurrentStage = -1;
    std::vector<ICheckStage*> m_Stages;
};

}  // namespace vexel
