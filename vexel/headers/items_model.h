#pragma once

#include "vexel/export.h"
#include "vexel/signals/signal.h"

#include <string>

namespace vexel
{

/// A row of items with captions.
class VEXEL_API IItemsModel
{
public:
    IItemsModel() = default;
    IItemsModel(IItemsModel const&) = delete;
    IItemsModel& operator=(IItemsModel const&) = delete;
    virtual ~IItemsModel();
    virtual int GetItemCount() const = 0;
    virtual std::string GetItemCaption(int index) const = 0;

    signal_t<> m_SigChanged;  ///< The content is another.
    /// The model dies; only this class's part still lives. Widgets forget it.
    signal_t<IItemsModel*> m_SigDestroy;
};

/// Items with pictures.
class VEXEL_API IItemsModelEx : public IItemsModel
{
public:
    virtual int GetItemImageIndex(int index) const = 0;  ///< In the control's image list; -1: none.
    virtual int GetItemTextAlign(int index) const = 0;   ///< Flags of IPainter::DrawString.
};

}  // namespace vexel
