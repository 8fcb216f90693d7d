#include "dialog/settings/list_pop_up.h"

#include "platform/controls/pop_up_button.h"

namespace dialog {
namespace {

QString valueText(const PrintSettingsMap &settings, const char *key)
{
    const auto found = settings.find(QLatin1String(key));
    return found == settings.end() ? QString() : found->second.toString();
}

bool isShown(const PopUpButton *popUp, const PrinterList &list)
{
    if (popUp->count() != static_cast<int>(list.items.size()))
        return false;
    for (int i = 0; i < popUp->count(); ++i) {
        const PrinterList::Item &item = list.items[static_cast<std::size_t>(i)];
        if (popUp->itemText(i) != item.title || popUp->itemData(i).toString() != item.value)
            return false;
    }
    return true;
}

} // namespace

void fillPopUp(PopUpButton *popUp, JobList list)
{
    for (const JobListItem &item : jobList(list).items)
        popUp->addItem(jobListItemText(item),
                       item.value ? QVariant(QString::fromLatin1(item.value)) : QVariant());
}

void showSetting(PopUpButton *popUp, JobList list, const PrintSettingsMap &settings)
{
    const JobListRow &row = jobList(list);
    const int known = static_cast<int>(row.items.size());
    while (popUp->count() > known)
        popUp->removeItem(known);
    const int index = jobListIndex(list, settings);
    if (index < 0)
        popUp->addItem(valueText(settings, row.key), valueText(settings, row.key));
    popUp->setCurrentIndex(index < 0 ? known : index);
}

void showList(PopUpButton *popUp, const PrinterList &list)
{
    if (!isShown(popUp, list)) {
        popUp->clear();
        for (const PrinterList::Item &item : list.items)
            popUp->addItem(item.title, item.value);
    }
    popUp->setCurrentIndex(list.current);
}

} // namespace dialog
