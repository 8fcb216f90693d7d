#pragma once

#include "plugin/panel_object.h"
#include "quality/kor_pde_controller.h"

/// The panel object of the Quality & Media panel.
class MainPDE2 final : public PanelObject<KorPDEController2>
{
public:
    /// Null without a host or a PPD.
    [[nodiscard]] static std::shared_ptr<MainPDE2> initWithCallback(PDEPlugInCallback *callback,
                                                                    Bundle *bundle);

    [[nodiscard]] QString panelName() override;
    [[nodiscard]] QString panelKind() override;
    void PPDOptionKeyValueDidChange(const QString &option, const QString &choice) override;

    /// Subscribes to the controller's disclosure notification, whoever posts it.
    void registerObserver();
    void changePPDOptionKeyValue() override;

protected:
    void subscribe() override { registerObserver(); }
    [[nodiscard]] QJsonObject describe(const PDEModel2 &model) const override;

private:
    MainPDE2() : PanelObject("MainPDE2") {}
    void takeOverDryTime(const QString &option, const QString &choice);
};
