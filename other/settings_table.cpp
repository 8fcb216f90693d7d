#include "other/settings_table.h"

#include "model/setting_json.h"

namespace other {

QJsonObject describeModel(const PDEModel2 &model)
{
    return {
        {QStringLiteral("reduceGhosting"), settingJson(model, row(Setting::ReduceGhosting).slots)},
        {QStringLiteral("printDensity"), settingJson(model, row(Setting::PrintDensity).slots)},
        {QStringLiteral("improvementSettings"),
         settingJson(model, row(Setting::ImprovementSettings).slots)},
        {QStringLiteral("improvePrintQuality"),
         settingJson(model, row(Setting::ImprovePrintQuality).slots)},
    };
}

} // namespace other

platform::OutletTable OtherOutlets::table()
{
    platform::OutletTable outlets;
    outlets.add("ibOthersView", ibOthersView)
        .add("ibCustomView", ibCustomView)
        .add("ibImprovementSettings", ibImprovementSettings)
        .add("ibImprovePrintQuality", ibImprovePrintQuality)
        .add("ibReduceGhosting", ibReduceGhosting)
        .add("ibImprovePrintDensity", ibImprovePrintDensity);
    return outlets;
}
