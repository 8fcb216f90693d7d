#pragma once

#include "plugin/kor_pde_plugin2.h"
#include "plugin/main_pde2.h"
#include "plugin/main_pde3.h"
#include "tests/support/driver_root.h"
#include "tests/support/fake_host.h"
#include "tests/support/plugin_bundle.h"
#include "tests/support/ppd_fixtures.h"
#include "tests/support/print_to.h"

#include <QWidget>

#include <memory>
#include <utility>
#include <vector>

namespace test {

/// What a life begins with.
struct LifeOptions
{
    PpdText ppd = p1();
    /// Option and choice, marked before the plug-in is asked for its panels.
    std::vector<std::pair<const char *, const char *>> marks = {};
    /// Invalid: no driver configuration list.
    QVariant productYear = 2009;
    /// The driver's list for the model switches the Other panel on.
    bool hasOtherPanel = false;
    int systemVersion = 0x1060;
    QStringList languages = {QStringLiteral("en")};
    QString locale = QStringLiteral("en_US");
    Bundle *bundle = pluginBundle();
};

/// P2, which has no driver configuration list.
[[nodiscard]] LifeOptions tonerLife();

/// A panel's life in the dialog: a PPD is opened and marked, the plug-in makes its panels, and each
/// panel builds its view, restores its values and is about to be shown.
class Life
{
public:
    enum class Until { Created, Shown };

    explicit Life(const LifeOptions &options = {}, Until until = Until::Shown);

    [[nodiscard]] MainPDE2 &panel() const;
    [[nodiscard]] MainPDE3 &otherPanel() const;
    [[nodiscard]] PDEModel2 &model() const;
    [[nodiscard]] PDEModel2 &otherModel() const;

    /// panelView, restoreValuesAndReturnError and willShow, for every panel.
    void show();
    /// Saves the Quality & Media panel and returns what it offered meanwhile.
    [[nodiscard]] Offers save();
    void externalChange(const char *option, const char *choice);

    /// A control of the panels' views by its outlet's name; the test fails when it is not there or
    /// of another class.
    template <class Control>
    [[nodiscard]] Control *control(const char *outlet) const
    {
        auto *found = qobject_cast<Control *>(widget(outlet));
        if (!found)
            reportMissing(outlet);
        return found;
    }
    [[nodiscard]] QWidget *view(PDEPanel &panel) const { return panel.panelView(); }

    DriverRoot root;
    OpenPpd ppd;
    FakeHost host;
    KorPDEPlugin2 plugIn;
    std::shared_ptr<PDEPanelList> panels;

private:
    [[nodiscard]] QWidget *widget(const char *outlet) const;
    static void reportMissing(const char *outlet);
};

/// "Option=Choice", with "∅" for a null choice.
[[nodiscard]] QStringList lines(const Offers &offers);

/// One line per named control of a view: what it shows and whether it can be used.
[[nodiscard]] QStringList controlStates(const QWidget *view);

} // namespace test
