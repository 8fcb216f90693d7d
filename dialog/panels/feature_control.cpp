#include "dialog/panels/feature_control.h"

#include "dialog/panels/choice_list.h"
#include "platform/controls/pop_up_button.h"
#include "platform/controls/spoken_label.h"

#include <QCheckBox>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace dialog {
namespace {

constexpr int kFewestCharacters = 8;
constexpr int kMostCharacters = 30;

QLabel *noteLabel(QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->hide();
    return label;
}

void setDimmed(QWidget *widget, bool isDimmed)
{
    QPalette palette; // what it does not set comes from the parent
    if (isDimmed)
        palette.setColor(QPalette::Active, QPalette::WindowText, dimmedText(widget->palette()));
    widget->setPalette(isDimmed ? palette : QPalette());
}

/// Ampersands of the PPD are shown.
QString literal(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}

int longestText(const PrinterOption &option)
{
    qsizetype longest = 0;
    for (const OptionChoice &choice : option.choices)
        longest = std::max(longest, choice.text.size());
    return static_cast<int>(longest);
}

const OptionChoice *choiceOf(const PrinterOption &option, QLatin1String keyword)
{
    const auto found =
        std::find_if(option.choices.begin(), option.choices.end(), [&](const OptionChoice &choice) {
            return choice.keyword.compare(keyword, Qt::CaseInsensitive) == 0;
        });
    return found == option.choices.end() ? nullptr : &*found;
}

class PopUpFeature : public FeatureControl
{
public:
    PopUpFeature(const PrinterOption &option, const Reason &reason)
        : FeatureControl(option, reason), popUp_(new PopUpButton(this)),
          list_(new ChoiceList(option, popUp_))
    {
        // Its size does not ask for the width of every text.
        popUp_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        popUp_->setMinimumContentsLength(
            std::clamp(longestText(option), kFewestCharacters, kMostCharacters));
        popUp_->setModel(list_);
        popUp_->setItemDelegate(new ChoiceDelegate(popUp_));
        popUp_->setObjectName(objectNameOf());
        popUp_->setAccessibleName(option.text);
        add(popUp_);
        addSpokenLabel(popUp_, literal(option.text));
        connect(popUp_, &QComboBox::activated, this, [this](int row) {
            Q_EMIT picked({this->option().keyword, popUp_->itemData(row).toString()}, Switch::On);
        });
    }

    [[nodiscard]] QWidget *buddy() override { return popUp_; }

protected:
    void update(const OptionState &state) override
    {
        std::map<QString, QString> reasons;
        for (const auto &[choice, inTheWay] : state.forbidden)
            reasons.emplace(choice, reasonOf(state, choice));
        list_->setReasons(reasons);
        popUp_->setCurrentIndex(state.marked.isEmpty() ? -1 : list_->rowOf(state.marked.first()));
        popUp_->setToolTip(popUp_->currentText());
    }

private:
    PopUpButton *popUp_;
    ChoiceList *list_;
};

/// A check box that stays usable where a rule forbids the click: then it is dimmed and says why.
class RuledBox : public QWidget
{
public:
    RuledBox(const QString &title, QWidget *parent)
        : QWidget(parent), box_(new QCheckBox(literal(title), this)), note_(noteLabel(this))
    {
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins({});
        column->setSpacing(0);
        column->addWidget(box_);
        column->addWidget(note_);
    }

    [[nodiscard]] QCheckBox *box() const { return box_; }
    /// @p reason forbids the other state; null: nothing does.
    void show(bool isChecked, const QString &reason)
    {
        box_->setChecked(isChecked);
        box_->setToolTip(reason);
        box_->setAccessibleDescription(reason);
        setDimmed(box_, !reason.isNull());
        note_->setText(reason);
        note_->setVisible(!reason.isNull());
    }

private:
    QCheckBox *box_;
    QLabel *note_;
};

class BooleanFeature : public FeatureControl
{
public:
    BooleanFeature(const PrinterOption &option, const Reason &reason)
        : FeatureControl(option, reason), on_(choiceOf(option, QLatin1String("True"))->keyword),
          off_(choiceOf(option, QLatin1String("False"))->keyword),
          box_(new RuledBox(option.text, this))
    {
        box_->box()->setObjectName(objectNameOf());
        box_->box()->setAccessibleName(option.text);
        add(box_);
        connect(box_->box(), &QCheckBox::clicked, this, [this](bool isOn) {
            Q_EMIT picked({this->option().keyword, isOn ? on_ : off_}, Switch::On);
        });
    }

    [[nodiscard]] bool bearsTitle() const override { return true; }
    [[nodiscard]] QWidget *buddy() override { return box_->box(); }

protected:
    void update(const OptionState &state) override
    {
        const bool isOn = state.marked.contains(on_);
        box_->show(isOn, reasonOf(state, isOn ? off_ : on_));
    }

private:
    QString on_;
    QString off_;
    RuledBox *box_;
};

class ManyFeature : public FeatureControl
{
public:
    ManyFeature(const PrinterOption &option, const Reason &reason) : FeatureControl(option, reason)
    {
        for (const OptionChoice &choice : option.choices)
            addBox(choice);
    }

    [[nodiscard]] QWidget *buddy() override { return boxes_.front()->box(); }

protected:
    void update(const OptionState &state) override
    {
        for (std::size_t i = 0; i < boxes_.size(); ++i) {
            const QString choice = option().choices[i].keyword;
            const bool isOn = state.marked.contains(choice);
            boxes_[i]->show(isOn, isOn ? QString() : reasonOf(state, choice));
        }
    }

private:
    void addBox(const OptionChoice &choice)
    {
        auto *box = new RuledBox(choice.text, this);
        box->box()->setObjectName(objectNameOf(choice.keyword));
        box->box()->setAccessibleName(option().text + QStringLiteral(": ") + choice.text);
        boxes_.push_back(box);
        add(box);
        connect(box->box(), &QCheckBox::clicked, this, [this, choice](bool isOn) {
            Q_EMIT picked({option().keyword, choice.keyword}, isOn ? Switch::On : Switch::Off);
        });
    }

    std::vector<RuledBox *> boxes_;
};

bool isSwitch(const PrinterOption &option)
{
    return option.kind == OptionKind::Boolean && choiceOf(option, QLatin1String("True")) &&
           choiceOf(option, QLatin1String("False"));
}

} // namespace

std::unique_ptr<FeatureControl> FeatureControl::make(const PrinterOption &option,
                                                     const Reason &reason)
{
    if (option.kind == OptionKind::PickMany)
        return std::make_unique<ManyFeature>(option, reason);
    if (isSwitch(option))
        return std::make_unique<BooleanFeature>(option, reason);
    return std::make_unique<PopUpFeature>(option, reason);
}

FeatureControl::FeatureControl(const PrinterOption &option, const Reason &reason)
    : option_(option), reason_(reason), conflict_(noteLabel(this))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(conflict_);
}

/// Above the note about a conflict.
void FeatureControl::add(QWidget *control)
{
    auto *column = static_cast<QVBoxLayout *>(layout());
    column->insertWidget(column->count() - 1, control);
}

void FeatureControl::showState(const OptionState &state)
{
    update(state);
    showConflict(state);
}

void FeatureControl::showConflict(const OptionState &state)
{
    QString text;
    for (const QString &choice : state.marked) {
        if (text.isNull())
            text = reasonOf(state, choice);
    }
    conflict_->setText(text);
    conflict_->setVisible(!text.isNull());
}

QString FeatureControl::reasonOf(const OptionState &state, const QString &choice) const
{
    const auto found = state.forbidden.find(choice);
    return found == state.forbidden.end() ? QString() : reason_(found->second);
}

QString FeatureControl::objectNameOf(const QString &choice) const
{
    const QString name = QStringLiteral("feature:") + option_.keyword;
    return choice.isNull() ? name : name + u'=' + choice;
}

bool FeatureControl::isAbout(const QString &text) const
{
    const auto contains = [&](const QString &part) {
        return part.contains(text, Qt::CaseInsensitive);
    };
    return contains(option_.text) || contains(option_.keyword) ||
           std::any_of(option_.choices.begin(), option_.choices.end(),
                       [&](const OptionChoice &choice) {
                           return contains(choice.text) || contains(choice.keyword);
                       });
}

} // namespace dialog
