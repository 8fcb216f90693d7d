#pragma once

#include <QString>
#include <QWidget>

#include <functional>
#include <vector>

class QLayout;
class QVBoxLayout;

namespace dialog {

enum class Severity { Information, Warning, Critical };

struct NoticeAction
{
    QString title;
    QString objectName;
    std::function<void()> run;
};

/// A message that stands in the window until it is dismissed, replaced or outlived.
struct Notice
{
    QString key; ///< a later notice with the same key replaces this one
    Severity severity = Severity::Information;
    QString text;
    std::vector<NoticeAction> actions; ///< buttons; each dismisses the notice before it runs
};

/// The place in the window where notices stand, newest last; takes no room without any.
class NoticeArea : public QWidget
{
    Q_OBJECT

public:
    explicit NoticeArea(QWidget *parent = nullptr);

    void show(const Notice &notice);
    /// Puts a view that says @p text in the place of a notice; the view becomes the area's.
    void place(const QString &key, const QString &text, QWidget *view);
    void dismiss(const QString &key);
    /// Dismisses every notice whose key begins so.
    void dismissGroup(const QString &prefix);
    /// Texts of what stands there, oldest first.
    [[nodiscard]] QStringList texts() const;

    using QWidget::show;

Q_SIGNALS:
    void shown(const QString &text);
    void heightChanged();

private:
    void insert(QWidget *view);
    [[nodiscard]] QWidget *makeDismissButton(const QString &key, QWidget *parent);
    [[nodiscard]] QLayout *makeActionRow(const Notice &notice, QWidget *parent);

    QVBoxLayout *layout_;
    struct Standing
    {
        QString key;
        QString text;
        QWidget *view;
    };
    std::vector<Standing> standing_;
};

} // namespace dialog
