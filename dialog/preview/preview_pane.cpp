#include "dialog/preview/preview_pane.h"

#include "dialog/preview/preview_words.h"
#include "dialog/preview/sheet_view.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSpinBox>
#include <QStyle>
#include <QToolButton>

#include <algorithm>
#include <array>
#include <utility>

namespace dialog {
namespace {

constexpr int kRefreshMilliseconds = 20;

// A window that nobody sees is not painted.
constexpr int kOpenAtLatestMilliseconds = 100;

// As large as on paper is 1.
constexpr std::array kZooms{0.1,  0.15, 0.2,  0.25, 0.33, 0.5, 0.67,
                            0.75, 1.0,  1.25, 1.5,  2.0,  3.0, 4.0};

double nextZoom(double zoom)
{
    constexpr double kSame = 1.001;
    const auto *larger = std::upper_bound(kZooms.begin(), kZooms.end(), zoom * kSame);
    return larger == kZooms.end() ? kZooms.back() : *larger;
}

double formerZoom(double zoom)
{
    constexpr double kSame = 0.999;
    const auto *notSmaller = std::lower_bound(kZooms.begin(), kZooms.end(), zoom * kSame);
    return notSmaller == kZooms.begin() ? kZooms.front() : *(notSmaller - 1);
}

QLabel *wordLabel(const char *name)
{
    auto *label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    return label;
}

/// Return is done with the number, and presses no button of the window.
class SheetField : public QSpinBox
{
protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        QSpinBox::keyPressEvent(event);
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            event->accept();
    }
};

void setWords(QWidget *control, const QString &name)
{
    control->setAccessibleName(name);
    control->setToolTip(name);
}

} // namespace

PreviewPane::PreviewPane(QWidget *parent) : PreviewPane(openPageSource, parent) {}

PreviewPane::PreviewPane(SourceOpener opener, QWidget *parent)
    : QWidget(parent), document_(std::move(opener)), view_(new SheetView)
{
    setObjectName(QStringLiteral("previewPane"));
    view_->setObjectName(QStringLiteral("previewSheetView"));
    caption_ = wordLabel("previewCaption");
    message_ = wordLabel("previewMessage");
    message_->hide();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(view_, 1);
    column->addWidget(caption_);
    column->addWidget(message_);
    column->addWidget(makeTurning());
    column->addWidget(makeZooming());
    writeTexts();
    refreshing_.setSingleShot(true);
    refreshing_.setInterval(kRefreshMilliseconds);
    connect(&refreshing_, &QTimer::timeout, this, &PreviewPane::refresh);
    opening_.setSingleShot(true);
    connect(&opening_, &QTimer::timeout, this, [this] { document_.open(path_); });
    connect(&document_, &PreviewDocument::opened, this, &PreviewPane::takeFacts);
    connect(&document_, &PreviewDocument::drawn, this, &PreviewPane::takePicture);
    connect(view_, &SheetView::turned, this, [this](int sides) { showIndex(index_ + sides); });
    connect(view_, &SheetView::turnedToEnd, this,
            [this](Qt::Edge edge) { showIndex(edge == Qt::TopEdge ? 0 : sideCount() - 1); });
    connect(view_, &SheetView::zoomStepped, this, &PreviewPane::stepZoom);
    connect(view_, &SheetView::scaleChanged, this, &PreviewPane::refreshSoon);
    updateControls();
}

QToolButton *PreviewPane::makeButton(const char *name)
{
    auto *button = new QToolButton;
    button->setObjectName(QLatin1String(name));
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAutoRaise(true);
    return button;
}

QWidget *PreviewPane::makeTurning()
{
    auto *row = new QWidget;
    auto *line = new QHBoxLayout(row);
    line->setContentsMargins({});
    previous_ = makeButton("previewPrevious");
    previous_->setArrowType(Qt::LeftArrow);
    sheet_ = new SheetField;
    sheet_->setObjectName(QStringLiteral("previewSheet"));
    sheet_->setAlignment(Qt::AlignCenter);
    next_ = makeButton("previewNext");
    next_->setArrowType(Qt::RightArrow);
    line->addStretch(1);
    line->addWidget(previous_);
    line->addWidget(sheet_);
    line->addWidget(next_);
    line->addStretch(1);
    connect(previous_, &QToolButton::clicked, this, [this] { showIndex(index_ - 1); });
    connect(next_, &QToolButton::clicked, this, [this] { showIndex(index_ + 1); });
    connect(sheet_, &QSpinBox::valueChanged, this, [this](int number) { showIndex(number - 1); });
    return row;
}

QWidget *PreviewPane::makeZooming()
{
    auto *row = new QWidget;
    auto *line = new QHBoxLayout(row);
    line->setContentsMargins({});
    zoomOut_ = makeButton("previewZoomOut");
    zoomOut_->setText(QStringLiteral("\u2212"));
    fit_ = makeButton("previewFit");
    fit_->setCheckable(true);
    fit_->setChecked(true);
    zoomIn_ = makeButton("previewZoomIn");
    zoomIn_->setText(QStringLiteral("+"));
    line->addStretch(1);
    line->addWidget(zoomOut_);
    line->addWidget(fit_);
    line->addWidget(zoomIn_);
    line->addStretch(1);
    connect(zoomOut_, &QToolButton::clicked, this, [this] { stepZoom(-1); });
    connect(zoomIn_, &QToolButton::clicked, this, [this] { stepZoom(1); });
    connect(fit_, &QToolButton::clicked, this, &PreviewPane::setFit);
    return row;
}

void PreviewPane::writeTexts()
{
    view_->setAccessibleName(tr("Preview"));
    setWords(previous_, tr("Previous sheet"));
    setWords(next_, tr("Next sheet"));
    setWords(sheet_, tr("Sheet shown"));
    setWords(zoomOut_, tr("Make the preview smaller"));
    setWords(zoomIn_, tr("Make the preview larger"));
    fit_->setText(tr("Fit"));
    setWords(fit_, tr("Show the whole sheet"));
}

void PreviewPane::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    writeTexts();
    updateControls();
}

void PreviewPane::setDocument(const QString &path)
{
    opening_.stop();
    path_ = path;
    facts_ = {};
    sides_.clear();
    index_ = 0;
    isOpening_ = !path.isNull();
    if (!isOpening_)
        takeFacts({});
    else if (wasPainted_)
        document_.open(path);
    else
        opening_.start(kOpenAtLatestMilliseconds);
    refreshSoon();
}

void PreviewPane::setLook(const SheetLook &look)
{
    if (look == look_)
        return;
    look_ = look;
    sides_ = printedSides(look_, facts_.pageCount);
    index_ = std::clamp(index_, 0, std::max(0, sideCount() - 1));
    updateControls();
    refreshSoon();
}

void PreviewPane::takeFacts(const DocumentFacts &facts)
{
    isOpening_ = false;
    facts_ = facts;
    sides_ = printedSides(look_, facts_.pageCount);
    index_ = std::clamp(index_, 0, std::max(0, sideCount() - 1));
    updateControls();
    refresh();
    Q_EMIT pageCountKnown(facts_.pageCount);
}

void PreviewPane::showIndex(int index)
{
    const int wanted = std::clamp(index, 0, std::max(0, sideCount() - 1));
    if (wanted != index_) {
        index_ = wanted;
        refreshSoon();
    }
    updateControls();
}

void PreviewPane::stepZoom(int steps)
{
    if (steps == 0) {
        setFit(true);
        return;
    }
    double zoom = view_->shownZoom();
    for (int step = 0; step < std::abs(steps); ++step)
        zoom = steps > 0 ? nextZoom(zoom) : formerZoom(zoom);
    view_->setZoom(zoom);
    updateControls();
}

void PreviewPane::setFit(bool fits)
{
    view_->setZoom(fits ? std::nullopt : std::optional(1.0));
    updateControls();
}

void PreviewPane::refreshSoon()
{
    if (!refreshing_.isActive())
        refreshing_.start();
}

void PreviewPane::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refreshSoon();
}

/// A window comes up sooner when what reads its document starts after that.
void PreviewPane::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    if (!std::exchange(wasPainted_, true) && opening_.isActive())
        opening_.start(0);
}

/// Nobody looks at a pane that is hidden; it draws as soon as it is shown.
void PreviewPane::refresh()
{
    refreshing_.stop();
    if (isOpening_ || !isVisible())
        return;
    if (!hasSides()) {
        document_.withdraw();
        takePicture({placePages(look_, {}, {}), {}, {}});
        return;
    }
    isWaiting_ = true;
    view_->setWaiting(true);
    document_.request(
        {look_, sides_[static_cast<std::size_t>(index_)], view_->pixelsPerPoint(sideSize(look_))});
}

void PreviewPane::takePicture(const SidePicture &picture)
{
    isWaiting_ = false;
    view_->setWaiting(false);
    view_->setSide(picture);
    updateWords();
    if (isCurrent())
        Q_EMIT becameCurrent();
}

std::vector<int> PreviewPane::shownPages() const
{
    return hasSides()
               ? pagesOnSide(look_, sides_[static_cast<std::size_t>(index_)], facts_.pageCount)
               : std::vector<int>{};
}

void PreviewPane::updateControls()
{
    const int count = std::max(1, sideCount());
    {
        const QSignalBlocker quiet(sheet_);
        //: Stands before the number of the sheet in "Sheet 1 of 3".
        sheet_->setPrefix(look_.sides == Sides::Two ? tr("Side ") : tr("Sheet "));
        //: Stands behind the number of the sheet in "Sheet 1 of 3".
        sheet_->setSuffix(tr(" of %1").arg(count));
        sheet_->setRange(1, count);
        sheet_->setValue(index_ + 1);
    }
    sheet_->setEnabled(sideCount() > 1);
    previous_->setEnabled(index_ > 0);
    next_->setEnabled(index_ + 1 < sideCount());
    const std::optional<double> zoom = view_->zoom();
    fit_->setChecked(!zoom);
    zoomIn_->setEnabled(!zoom || *zoom < kZooms.back());
    zoomOut_->setEnabled(!zoom || *zoom > kZooms.front());
    updateWords();
}

void PreviewPane::updateWords()
{
    const std::vector<int> pages = shownPages();
    QString message = PreviewWords::problem(isOpening_ ? DocumentProblem::None : facts_.problem);
    if (message.isEmpty() && !isOpening_ && !hasSides())
        message = tr("Nothing would be printed: no page is among those chosen.");
    if (message.isEmpty())
        message = PreviewWords::damagedPages(view_->side().damaged);
    message_->setText(message);
    message_->setVisible(!message.isEmpty());
    caption_->setText(PreviewWords::caption(look_, pages, index_));
    const QString description =
        PreviewWords::description(look_, pages, index_, std::max(1, sideCount()));
    //: What the sheet shows, and a sentence about what it does not.
    view_->setAccessibleDescription(message.isEmpty() ? description
                                                      : tr("%1. %2").arg(description, message));
}

} // namespace dialog
