// Qt's print dialog and nothing more, for opening_bench to compare with.

#include "bench/usable.h"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTimer>

/// It has everything when its constructor returns.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const int queues = QCoreApplication::arguments().value(2).toInt();
    QPrinter printer;
    QPrintDialog dialog(&printer);
    dialog.show();
    dialog.repaint();
    if (QPrinterInfo::availablePrinterNames().size() != queues)
        return 1;
    QTimer::singleShot(0, bench::tellUsable);
    return QCoreApplication::exec();
}
