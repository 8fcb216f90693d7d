#pragma once

#include "dialog/printers/page_range.h"
#include "dialog/printers/paper_size.h"

#include <QString>

#include <vector>

/// How a job comes out, as far as one can see it: paper, orientation, pages per sheet and so on.
/// The words and rules are those of the print server's filter that lays out pages.
namespace dialog {

/// The values of IPP less 3.
enum class SheetOrientation { Portrait, Landscape, ReverseLandscape, ReversePortrait };

/// Which way a printer turns what lies across its paper: the value of *LandscapeOrientation.
enum class LandscapeTurn { Plus90, Minus90 };

/// In which order the pages stand on a sheet: first the direction inside a line, then that from
/// line to line.
enum class PageOrder { LrTb, LrBt, RlTb, RlBt, TbLr, TbRl, BtLr, BtRl };

enum class PageBorder { None, Single, SingleThick, Double, DoubleThick };

/// Unset is what comes out when the job says nothing: Auto, and Fit for a picture.
enum class PageScaling { Unset, Auto, AutoFit, Fit, Fill, None };

enum class Sides { One, Two };

/// Which sides of the job are printed, and in which order. Numbers count printed sides, which are
/// the document's pages unless several stand on a sheet.
struct SideSelection
{
    enum class Set { All, Odd, Even };
    enum class Order { Normal, Reverse };

    std::vector<PageRange> ranges = {}; ///< empty: all
    Set set = Set::All;
    Order order = Order::Normal;

    bool operator==(const SideSelection &) const = default;
};

struct SheetLook
{
    PaperSize paper;
    QString paperText = {}; ///< what a person reads
    SheetOrientation orientation = SheetOrientation::Portrait;
    LandscapeTurn landscapeTurn = LandscapeTurn::Plus90;
    int pagesPerSheet = 1; ///< a number that no grid has counts as 1
    PageOrder order = PageOrder::LrTb;
    PageBorder border = PageBorder::None;
    PageScaling scaling = PageScaling::Unset;
    bool isMirrored = false;
    bool isGrayscale = false;
    SideSelection selection = {};
    Sides sides = Sides::One;
    int copies = 1;
    bool isCollated = true;

    bool operator==(const SheetLook &) const = default;
};

/// The numbers of the job's printed sides in the order in which they come out, from 0; -1 is a side
/// that stays empty: where a two-sided job is reversed, so that fronts stay fronts.
[[nodiscard]] std::vector<int> printedSides(const SheetLook &look, int pageCount);

/// The document's pages on the side of that number, in order, from 0.
[[nodiscard]] std::vector<int> pagesOnSide(const SheetLook &look, int side, int pageCount);

} // namespace dialog
