#pragma once

#include "vexel/widgets/gauge_box.h"
#include "vexel/widgets/message_box_base.h"

namespace vexel
{

/// A gauge with its button and its line of text below an image and a title: the progress of some work.
class VEXEL_API CTitledGaugeBox : public CMessageBoxTempl<CGaugeBoxEx>
{
public:
    using CMessageBoxTempl::CMessageBoxTempl;
    ~CTitledGaugeBox() override;
};

}  // namespace vexel
