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

/// Below a control, made when there is something to say first.
void showNote(QLabel *&label, QWidget *control, const QString &text)
{
    if (!label && text.isNull())
        return;
    if (!label) {
        label = new QLabel(control);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        control->layout()->addWidget(label);
    }
    label->setText(text);
    label->setVisible(!text.isNull());
}

void setDimmed(QWidget *widget, bool isDimmed)
{
    QPalette palette; // what it does not set comes from the parent
    if (isDimmed)
        palette.setColor(QPalette::Active, QPalette::WindowText, dimmedText(widget->palette()));
    widget->setPalette(isDimmed ? palette : QPalette());
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

/// Makes its list, and what paints it, when it is opened first.
class ChoicePopUp : public PopUpButton
{
public:
    using PopUpButton::PopUpButton;

    void showPopup() override
    {
        if (!delegate_)
            setItemDelegate(delegate_ = new ChoiceDelegate(this));
        PopUpButton::showPopup();
    }

private:
    ChoiceDelegate *delegate_ = nullptr;
};

class PopUpFeature : public FeatureControl
{
public:
    PopUpFeature(const PrinterOption &option, const Reason &reason)
        : FeatureControl(option, reason), popUp_(new ChoicePopUp(this)),
          list_(new ChoiceList(option, popUp_))
    {
        // Its size does not ask for the width of every text.
        popUp_->setMinimumContentsLength(
            std::clamp(longestText(option), kFewestCharacters, kMostCharacters));
        popUp_->setModel(list_);
        popUp_->setObjectName(objectNameOf());
        popUp_->setAccessibleName(option.text);
        add(popUp_);
        addSpokenLabel(popUp_, literalText(option.text));
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
        popUp_->setAccessibleDescription({});
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
        : QWidget(parent), box_(new QCheckBox(literalText(title), this))
    {
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins({});
        column->setSpacing(0);
        column->addWidget(box_);
    }

    [[nodiscard]] QCheckBox *box() const { return box_; }
    /// @p reason forbids the other state; null: nothing does.
    void show(bool isChecked, const QString &reason)
    {
        box_->setChecked(isChecked);
        box_->setToolTip(reason);
        box_->setAccessibleDescription(reason);
        setDimmed(box_, !reason.isNull());
        showNote(note_, this, reason);
    }

private:
    QCheckBox *box_;
    QLabel *note_ = nullptr;
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

QString literalText(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}

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
    : option_(option), reason_(reason)
{
    (new QVBoxLayout(this))->setContentsMargins({});
}

void FeatureControl::add(QWidget *control)
{
    layout()->addWidget(control);
}

void FeatureControl::showState(const OptionState &state, const QString &remark)
{
    update(state);
    const QString conflict = conflictOf(state);
    showNote(conflict_, this, conflict);
    QStringList words{remark, buddy()->accessibleDescription(), conflict};
    words.removeAll(QString());
    buddy()->setAccessibleDescription(words.join(u'\n'));
}

QString FeatureControl::conflictOf(const OptionState &state) const
{
    QString text;
    for (const QString &choice : state.marked) {
        if (text.isNull())
            text = reasonOf(state, choice);
    }
    return text;
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
