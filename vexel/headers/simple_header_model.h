#pragma once

#include "vexel/headers/index_translator.h"
#include "vexel/headers/items_model.h"
#include "vexel/signals/signal.h"

#include <string>
#include <vector>

namespace vexel
{

class CSimpleHeader;

/// What a CSimpleHeader asks of its sections. All indices are visible ones: places on the screen.
class VEXEL_API ISimpleHeaderModel : public IItemsModelEx, public IIndexTranslator
{
public:
    virtual std::string GetItemDescr(int) const { return {}; }  ///< The tooltip.
    virtual int GetItemWidth(int index) const = 0;              ///< Pixels along the header.
    virtual int GetSortingDirection(int) const { return 0; }    ///< 0: no mark.
    int TranslateIndex(int index, bool* removed) const override = 0;
    virtual void ConnectHeader(CSimpleHeader*) {}  ///< The header shows this model from now on.
    virtual void DisconnectHeader(CSimpleHeader*) {}
};

/// Keeps the order of the sections, which is how a user's drag of a column reaches the data. A visible index is a
/// place on the screen, a model index the number of the section in the application's data.
///
/// The concrete model answers captions, pictures and widths; it makes the order with InitStartOrder or SetCount.
class VEXEL_API CSimpleHeaderModel : public ISimpleHeaderModel, public subscriber_base_t
{
public:
    // The order ------------------------------------------------------------------------------------------------------
    void InitStartOrder(int count);  ///< 0, 1, ..., count - 1.
    /// Keeps what is there; a new place gets its own number. Below 0 counts as 0.
    void SetCount(int count);
    void InsertSection(int position, int modelIndex);  ///< `position`: 0 to the count; not checked.
    void RemoveSection(int position);                  ///< Must exist; not checked.
    void SetModelIndex(int position, int modelIndex);  ///< Does nothing where there is no such place.

    bool IndexIsValid(int index) const;
    int VisibleIndex2ModelIndex(int index) const;  ///< -1 outside.
    int GetModelIndex(int index) const { return VisibleIndex2ModelIndex(index); }
    int ModelIndex2Index(int modelIndex) const;  ///< The first place that has it, or -1. Searches.

    /// The section at `from` was dropped at `to`: takes it there, those between make room. Does nothing if either is
    /// outside. Connected to the header's m_SigSectionMoved.
    void OnMoveSection(CSimpleHeader* header, int from, int to);

    // From ISimpleHeaderModel ------------------------------------------------------------------------------------------
    /// By the last move.
    int TranslateIndex(int index, bool* removed) const override { return m_Translator.TranslateIndex(index, removed); }
    void ConnectHeader(CSimpleHeader* header) override;  ///< Null: nothing.
    void DisconnectHeader(CSimpleHeader* header) override;

private:
    std::vector<int> m_Order;      // by place: the model index of what is shown there
    CMoveTranslator m_Translator;  // the last move
};

}  // namespace vexel
