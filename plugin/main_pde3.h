#pragma once

#include "other/kor_pde_controller3.h"
#include "plugin/panel_object.h"

/// The panel object of the Other panel. It observes no notification.
class MainPDE3 final : public PanelObject<KorPDEController3>
{
public:
    /// Null without a host or a PPD.
    [[nodiscard]] static std::shared_ptr<MainPDE3> initWithCallback(PDEPlugInCallback *callback,
                                                                    Bundle *bundle);

    [[nodiscard]] QString panelName() override;
    [[nodiscard]] QString panelKind() override;
    void PPDOptionKeyValueDidChange(const QString &option, const QString &choice) override;

    void changePPDOptionKeyValue() override;

protected:
    [[nodiscard]] QJsonObject describe(const PDEModel2 &model) const override;

private:
    MainPDE3() : PanelObject("MainPDE3") {}
};
