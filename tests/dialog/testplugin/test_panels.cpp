#include "tests/dialog/testplugin/test_panels.h"

#include "platform/console.h"
#include "platform/controls/modal_session.h"
#include "platform/controls/pop_up_button.h"
#include "platform/controls/radio_matrix.h"
#include "platform/controls/stepper.h"
#include "platform/help_viewer.h"
#include "platform/notification_center.h"

#include <QCheckBox>
#include <QDialog>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace testplugin {
namespace {

template <class Control>
Control *named(const char *name, Control *control)
{
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

PopUpButton *popUp(const char *name, const QStringList &keywords)
{
    auto *control = named(name, new PopUpButton);
    for (const QString &keyword : keywords)
        control->addItem(keyword + QStringLiteral(" text"), keyword);
    return control;
}

/// What both panels do alike.
class Panel : public QObject, public PDEPanel, public PDEPanelDiagnostics
{
public:
    Panel(const char *name, PDEPlugInCallback *host) : host_(host), name_(QString::fromLatin1(name))
    {
    }

    ~Panel() override { delete view_; }

    QString panelName() override { return name_; }
    QString panelKind() override { return QStringLiteral("com.example.") + name_.toLower(); }
    QStringList supportedPPDOptionKeys() override { return tickets_.keys(); }
    void willShow() override { platform::writeConsole(name_ + QStringLiteral(" will show")); }
    bool shouldHide() override
    {
        platform::writeConsole(name_ + QStringLiteral(" should hide"));
        return true;
    }
    bool restoreValuesAndReturnError(QString *) override { return true; }
    bool saveValuesAndReturnError(QString *) override
    {
        platform::writeConsole(name_ + QStringLiteral(" saves"));
        host_->willChangePPDOptionKeyValue(QStringLiteral("InkToUse"),
                                           QStringLiteral("Automatisch"));
        for (auto ticket = tickets_.cbegin(); ticket != tickets_.cend(); ++ticket)
            host_->willChangePPDOptionKeyValue(ticket.key(), ticket.value());
        return true;
    }
    SummaryInfo summaryInfo() override
    {
        platform::writeConsole(QStringLiteral("asked for the summary"));
        return {{QStringLiteral("Name"), name_}};
    }
    void PPDOptionKeyValueDidChange(const QString &option, const QString &choice) override
    {
        heard_->setText(heard_->text() + option + u'=' + choice + u';');
    }
    PDEPanelDiagnostics *diagnostics() override { return this; }
    QJsonObject model() override
    {
        QJsonObject model;
        for (auto ticket = tickets_.cbegin(); ticket != tickets_.cend(); ++ticket)
            model.insert(ticket.key(), ticket.value());
        return model;
    }
    QJsonObject frames() override { return {{QStringLiteral("view"), QJsonArray{0, 0, 440, 200}}}; }

protected:
    void add(QWidget *control) { view_->layout()->addWidget(control); }
    /// Keeps the ticket whatever the dialog answers.
    void offer(const QString &option, const QString &choice)
    {
        tickets_[option] = choice;
        host_->willChangePPDOptionKeyValue(option, choice);
    }
    void makeView()
    {
        view_ = new QWidget;
        new QVBoxLayout(view_);
        heard_ = named("ibHeard", new QLabel(QStringLiteral("")));
        add(heard_);
    }
    void offerPicks(PopUpButton *control, const QString &option)
    {
        connect(control, &QComboBox::activated, this, [this, control, option](int index) {
            offer(option, control->itemData(index).toString());
        });
    }

    PDEPlugInCallback *host_;
    QString name_;
    QPointer<QWidget> view_;
    QPointer<QLabel> heard_;
    QMap<QString, QString> tickets_;
};

/// A window with one label and one button.
QDialog *makeWindow(const char *name, const char *label, QPushButton *button)
{
    auto *window = named(name, new QDialog);
    window->setWindowTitle(QString::fromLatin1(name) + QStringLiteral(" title"));
    auto *column = new QVBoxLayout(window);
    column->addWidget(named(label, new QLabel(QStringLiteral("Attention"), window)));
    column->addWidget(button);
    return window;
}

class BasicsPanel : public Panel
{
public:
    explicit BasicsPanel(PDEPlugInCallback *host) : Panel("Basics", host) {}

    bool shouldShowHelp() override { return true; }

    QWidget *panelView() override
    {
        if (view_)
            return view_;
        makeView();
        addPopUps();
        addBoxes();
        addField();
        addButtons();
        return view_;
    }

private:
    void addPopUps()
    {
        auto *quality = popUp("ibQuality", {QStringLiteral("Draft"), QStringLiteral("Normal"),
                                            QStringLiteral("Best"), QStringLiteral("NoSuch")});
        quality->setCurrentIndex(1);
        offerPicks(quality, QStringLiteral("PrintQuality"));
        add(quality);
        auto *media = popUp("ibMedia", {QStringLiteral("Plain"), QStringLiteral("IronOn")});
        connect(media, &QComboBox::activated, this, [this](int index) {
            offer(QStringLiteral("MediaType"),
                  index == 0 ? QStringLiteral("Plain") : QStringLiteral("IronOn"));
            if (index == 1)
                offer(QStringLiteral("Mirror"), QStringLiteral("On"));
        });
        add(media);
    }

    void addBoxes()
    {
        auto *mirror = named("ibMirror", new QCheckBox(QStringLiteral("Mirror, a wide box")));
        connect(mirror, &QCheckBox::clicked, this, [this](bool on) {
            offer(QStringLiteral("Mirror"), on ? QStringLiteral("On") : QStringLiteral("Off"));
        });
        add(mirror);
        auto *disabled = named("ibDisabled", new QCheckBox(QStringLiteral("Disabled")));
        disabled->setEnabled(false);
        add(disabled);
        auto *hidden = named("ibHidden", new QCheckBox(QStringLiteral("Hidden")));
        add(hidden);
        hidden->hide();
    }

    void addField()
    {
        add(named("ibField", new QLineEdit(QStringLiteral("3"))));
        auto *stepper = named("ibStepper", new Stepper);
        stepper->setMinimum(1);
        stepper->setMaximum(5);
        stepper->setValue(3);
        add(stepper);
        auto *matrix = named("ibMatrix", new RadioMatrix);
        matrix->setRows(3);
        for (int row = 0; row < 3; ++row)
            matrix->setRowTitle(row, QStringLiteral("Row %1").arg(row));
        add(matrix);
    }

    void addButtons()
    {
        auto *ask = named("ibAsk", new QPushButton(QStringLiteral("Ask")));
        connect(ask, &QPushButton::clicked, this, &BasicsPanel::ask);
        add(ask);
        auto *grow = named("ibGrow", new QPushButton(QStringLiteral("Grow")));
        connect(grow, &QPushButton::clicked, this, [this] {
            view_->setMinimumHeight(view_->height() + 100);
            platform::NotificationCenter::defaultCenter().post(QStringLiteral("grown"), this);
            host_->panelViewDidResize();
        });
        add(grow);
    }

    void ask()
    {
        auto *more = named("ibMore", new QPushButton(QStringLiteral("More")));
        const std::unique_ptr<QDialog> outer(makeWindow("ibOuterWindow", "ibOuterLabel", more));
        connect(more, &QPushButton::clicked, this, [&] { tell(outer.get()); });
        platform::setWindowDelegate(outer.get(), this, [](QDialog *) { platform::stopModal(); });
        platform::runModalForWindow(outer.get());
        offer(QStringLiteral("Sharpen"), QStringLiteral("High"));
    }

    /// The instructions inside the question; the question ends after them.
    void tell(QDialog *outer)
    {
        auto *done = named("ibDone", new QPushButton(QStringLiteral("Done")));
        const std::unique_ptr<QDialog> inner(makeWindow("ibInnerWindow", "ibInnerLabel", done));
        connect(done, &QPushButton::clicked, inner.get(), [&] {
            platform::stopModal();
            platform::closeWindow(inner.get());
        });
        platform::setWindowDelegate(inner.get(), this, [](QDialog *) { platform::stopModal(); });
        platform::runModalForWindow(inner.get());
        platform::writeConsole(QStringLiteral("the inner window is done"));
        platform::closeWindow(outer);
    }
};

class ExtrasPanel : public Panel
{
public:
    explicit ExtrasPanel(PDEPlugInCallback *host) : Panel("Extras", host) {}

    bool shouldShowHelp() override
    {
        AHGotoPage(QStringLiteral("Extras Help"), QString(), QString());
        return false;
    }

    QWidget *panelView() override
    {
        if (view_)
            return view_;
        makeView();
        auto *sharpen = popUp("ibSharpen", {QStringLiteral("Off"), QStringLiteral("High")});
        offerPicks(sharpen, QStringLiteral("Sharpen"));
        add(sharpen);
        return view_;
    }
};

} // namespace

std::shared_ptr<PDEPanel> makeBasicsPanel(PDEPlugInCallback *host)
{
    return std::make_shared<BasicsPanel>(host);
}

std::shared_ptr<PDEPanel> makeExtrasPanel(PDEPlugInCallback *host)
{
    return std::make_shared<ExtrasPanel>(host);
}

bool TestPlugIn::initWithBundle(Bundle *bundle)
{
    return bundle != nullptr;
}

std::shared_ptr<PDEPanelList> TestPlugIn::PDEPanelsForType(const QString &type,
                                                           PDEPlugInCallback *host)
{
    if (type != kPDEPrintDialogType)
        return nullptr;
    return std::make_shared<PDEPanelList>(
        PDEPanelList{makeBasicsPanel(host), makeExtrasPanel(host)});
}

} // namespace testplugin
