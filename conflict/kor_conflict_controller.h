#pragma once

#include "model/pde_model.h"
#include "platform/print_objects.h"

#include <QDialog>
#include <QLabel>
#include <QObject>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>

#include <vector>

/// Name of the notification after a resolution changed the model.
inline const QString ConflictControllerChangeNotification =
    QStringLiteral("ConflictController calling a UI CHANGE");

/// PROVISIONAL: the room's owner completes this class; the signatures below stay.
class KorConflictController2 : public QObject
{
    Q_OBJECT

public:
    /// All borrowed; the model is shared with the panel's controller, which outlives this object.
    static KorConflictController2 *initWithSettings(PMPrintSettings settings, PMPageFormat pageFormat,
                                                    ppd_file_t *ppd, PDEModel2 *model);
    ~KorConflictController2() override;

    void setPrintSession(PMPrintSession session);
    void processConflict();
    [[nodiscard]] std::vector<int> validateConflict();
};
