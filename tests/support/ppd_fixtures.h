#pragma once

#include <cups/ppd.h>

#include <QByteArray>
#include <QTemporaryDir>

#include <memory>
#include <vector>

namespace test {

enum class PpdUi { Boolean, PickOne, PickMany };

struct PpdChoice
{
    QByteArray keyword;
    QByteArray text;
};

struct PpdOption
{
    QByteArray keyword;
    QByteArray text;
    PpdUi ui = PpdUi::PickOne;
    std::vector<PpdChoice> choices;
    QByteArray defaultChoice; ///< empty: no default line
};

/// A printer description that a test can take apart before it is written and opened.
class PpdText
{
public:
    PpdText &add(PpdOption option);
    PpdText &without(const QByteArray &option);
    /// The option, to change it in place; the test fails when it is not there.
    PpdOption &option(const QByteArray &keyword);
    PpdText &withDefault(const QByteArray &option, const QByteArray &choice);
    PpdText &withoutChoice(const QByteArray &option, const QByteArray &choice);
    /// An attribute line with a quoted value; replaces one of that name.
    PpdText &withAttribute(const QByteArray &name, const QByteArray &value);
    PpdText &withoutAttribute(const QByteArray &name);
    /// A line as it stands, such as "*UIConstraints: ...".
    PpdText &withLine(const QByteArray &line);
    PpdText &withLanguageEncoding(const QByteArray &encoding); ///< empty: no such line

    [[nodiscard]] QByteArray bytes() const;
    [[nodiscard]] const std::vector<PpdOption> &options() const { return options_; }

private:
    std::vector<PpdOption> options_;
    std::vector<std::pair<QByteArray, QByteArray>> attributes_;
    std::vector<QByteArray> lines_;
    QByteArray languageEncoding_ = "UTF-8";
};

/// The printers of the tests: ink (P1, with dry time as a check box: P1c, with three inks: P1s), toner
/// (P2, with P1's inks: P2m), and P1 with P2's toner save, threshold and halftone (P3).
[[nodiscard]] PpdText p1();
[[nodiscard]] PpdText p1c();
[[nodiscard]] PpdText p1s();
[[nodiscard]] PpdText p2();
[[nodiscard]] PpdText p2m();
[[nodiscard]] PpdText p3();

enum class Marks { Defaults, None };
enum class Host { SetsEncoding, LeavesRecord };

/// A PPD written to a file of its own, opened by libcups as the dialog does it: a missing lang_encoding
/// becomes "UTF-8", the defaults are marked.
class OpenPpd
{
public:
    explicit OpenPpd(const PpdText &text, Marks marks = Marks::Defaults,
                     Host host = Host::SetsEncoding);

    [[nodiscard]] ppd_file_t *get() const { return ppd_.get(); }
    void mark(const char *option, const char *choice) const;
    [[nodiscard]] QByteArray marked(const char *option) const;

private:
    struct Closer
    {
        void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
    };
    QTemporaryDir directory_;
    std::unique_ptr<ppd_file_t, Closer> ppd_;
};

} // namespace test
