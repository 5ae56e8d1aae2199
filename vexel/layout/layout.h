#pragma once

#include "vexel/core/types.h"
#include "vexel/export.h"
#include "vexel/platform/font.h"
#include "vexel/platform/geometry.h"
#include "vexel/platform/painter.h"

namespace vexel
{

/// How a widget that can be docked to any edge draws along it: it computes in along (the edge's direction) and across
/// coordinates, and a layout turns these into x and y. Stateless and shared. x grows to the right, y downwards.
class VEXEL_API ILayout
{
public:
    virtual ~ILayout();

    virtual void IncAlong(point<double>* position, double value) const = 0;   ///< Adds to the along coordinate.
    virtual void IncAcross(point<double>* position, double value) const = 0;  ///< Adds to the across coordinate.

    // Of two values given as x and y, or as width and height: the one along the edge, or across it ------------------
    virtual double GetAlong(double x, double y) const = 0;
    virtual double& GetAlongRef(double& x, double& y) const = 0;
    virtual int& GetAlongRef(int& x, int& y) const = 0;
    virtual double GetAcross(double x, double y) const = 0;
    virtual double& GetAcrossRef(double& x, double& y) const = 0;
    virtual int& GetAcrossRef(int& x, int& y) const = 0;

    /// Narrows the two edges of the rectangle that lie along (left and right of a horizontal layout) to the limit's.
    virtual void CutRect(rectangle<int>* rect, rectangle<int> const& limit) const = 0;
    virtual point<double> MakePoint(double along, double across) const = 0;
    virtual rectangle<double> MakeRect(double alongStart, double acrossStart, double alongEnd,
                                       double acrossEnd) const = 0;

    /// Turns a font for text that runs along the edge: on vertical ones rotation 0 becomes 2700 (downwards) and 2700
    /// becomes 0, others stay.
    virtual void ConvFont(font* value) const = 0;
    /// The alignment flags of a text that is turned with the edge. Vertical layouts drop every flag above AlignVCenter.
    virtual int ConvTextAlign(int flags) const = 0;
};

class VEXEL_API CLayoutBase : public ILayout
{
public:
    void ConvFont(font* value) const override { ConvFontInt(value); }
    int ConvTextAlign(int flags) const override { return ConvTextAlignInt(flags); }

protected:
    virtual void ConvFontInt(font* value) const = 0;
    virtual int ConvTextAlignInt(int flags) const = 0;
};

/// Along is x, across is y.
class VEXEL_API CHorzLayout : public CLayoutBase
{
public:
    void IncAlong(point<double>* position, double value) const override { position->x += value; }
    void IncAcross(point<double>* position, double value) const override { position->y += value; }
    double GetAlong(double x, double) const override { return x; }
    double& GetAlongRef(double& x, double&) const override { return x; }
    int& GetAlongRef(int& x, int&) const override { return x; }
    double GetAcross(double, double y) const override { return y; }
    double& GetAcrossRef(double&, double& y) const override { return y; }
    int& GetAcrossRef(int&, int& y) const override { return y; }
    void CutRect(rectangle<int>* rect, rectangle<int> const& limit) const override;
    point<double> MakePoint(double along, double across) const override { return {along, across}; }
    rectangle<double> MakeRect(double alongStart, double acrossStart, double alongEnd, double acrossEnd) const override
    {
        return {alongStart, acrossStart, alongEnd, acrossEnd};
    }

protected:
    void ConvFontInt(font*) const override {}
};

/// Along is y, across is x.
class VEXEL_API CVertLayout : public CLayoutBase
{
public:
    void IncAlong(point<double>* position, double value) const override { position->y += value; }
    void IncAcross(point<double>* position, double value) const override { position->x += value; }
    double GetAlong(double, double y) const override { return y; }
    double& GetAlongRef(double&, double& y) const override { return y; }
    int& GetAlongRef(int&, int& y) const override { return y; }
    double GetAcross(double x, double) const override { return x; }
    double& GetAcrossRef(double& x, double&) const override { return x; }
    int& GetAcrossRef(int& x, int&) const override { return x; }
    void CutRect(rectangle<int>* rect, rectangle<int> const& limit) const override;
    point<double> MakePoint(double along, double across) const override { return {across, along}; }
    rectangle<double> MakeRect(double alongStart, double acrossStart, double alongEnd, double acrossEnd) const override
    {
        return {acrossStart, alongStart, acrossEnd, alongEnd};
    }

protected:
    void ConvFontInt(font* value) const override;
};

class VEXEL_API CTopLayout : public CHorzLayout
{
protected:
    /// Adds bottom to top and top to bottom: with either of the two, both come out, and the painter's precedence puts
    /// the text at the bottom.
    int ConvTextAlignInt(int flags) const override;
};

class VEXEL_API CBottomLayout : public CHorzLayout
{
protected:
    int ConvTextAlignInt(int flags) const override { return flags; }
};

/// Left becomes top, right bottom; top becomes right and bottom left.
class VEXEL_API CLeftLayout : public CVertLayout
{
protected:
    int ConvTextAlignInt(int flags) const override;
};

/// Left becomes top, right bottom; top becomes left and bottom right.
class VEXEL_API CRightLayout : public CVertLayout
{
protected:
    int ConvTextAlignInt(int flags) const override;
};

class VEXEL_API CLayoutManager
{
public:
    /// The layout of an edge. Every alignment that is none of the other three edges gets the bottom one. Lives as long as
    /// the process; may be called from any thread.
    static ILayout* GetLayout(Alignment alignment);
};

/// ORs `to` into the result if any of the `from` flags is set.
VEXEL_API void ChangeAlign(int flags, int* result, IPainter::AlignmentFlags from, IPainter::AlignmentFlags to);

}  // namespace vexel
