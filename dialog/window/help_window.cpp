#include "dialog/window/help_window.h"

#include "platform/bundle.h"
#include "platform/values.h"

#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace dialog {
namespace {

constexpr QSize kSize(480, 420);

} // namespace

QString helpPagePath(const QString &bookPath, const QString &page)
{
    const auto book = Bundle::bundleWithPath(bookPath);
    if (!book)
        return {};
    const QVariantMap information = book->infoDictionary();
    const QString folder = information.value(QStringLiteral("CFBundleHelpBookFolder")).toString();
    const QString file = page.isNull() ? QStringLiteral("index.html") : page;
    for (const QString &language :
         {Bundle::messageLanguage(platform::firstPreferredLanguage()),
          information.value(QStringLiteral("CFBundleDevelopmentRegion")).toString()}) {
        const QString path = book->resourcePath(folder + u'/' + language + u'/' + file);
        if (!path.isNull())
            return path;
    }
    return {};
}

HelpWindow::HelpWindow(QWidget *parent) : QDialog(parent), browser_(new QTextBrowser(this))
{
    setObjectName(QStringLiteral("helpWindow"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(browser_);
    resize(kSize);
}

void HelpWindow::showPage(const QString &title, const QString &pagePath, const QString &anchor)
{
    QUrl url = QUrl::fromLocalFile(pagePath);
    if (!anchor.isNull())
        url.setFragment(anchor);
    setWindowTitle(title);
    browser_->setSource(url);
    show();
    raise();
}

} // namespace dialog
