#include <QDirIterator>
#include <QFile>
#include <QLibraryInfo>
#include <QMap>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// For each room all those that its files may include: the rooms to which arrows lead down from it.
const QMap<QString, QStringList> &roomsBelow()
{
    static const auto table = [] {
        // The arrows of docs/architecture.md, from the bottom to the top.
        const std::pair<QString, QStringList> arrows[] = {
            {u"data"_s, {}},
            {u"lists"_s, {u"data"_s}},
            {u"settings"_s, {u"lists"_s}},
            {u"widgets"_s, {u"settings"_s}},
            {u"reports"_s, {u"widgets"_s}},
            {u"bank"_s, {u"reports"_s}},
            {u"stock"_s, {u"reports"_s}},
            {u"entries"_s, {u"bank"_s, u"stock"_s}},
            {u"history"_s, {u"widgets"_s}},
            {u"agenda"_s, {u"entries"_s}},
            {u"sales"_s, {u"entries"_s}},
            {u"analysis"_s, {u"sales"_s, u"agenda"_s}},
            {u"mail"_s, {u"entries"_s}},
            {u"app"_s, {u"analysis"_s, u"mail"_s, u"history"_s}},
        };
        QMap<QString, QStringList> below;
        for (const auto &[room, others] : arrows) {
            QStringList reached = others;
            for (const QString &other : others)
                if (below.contains(other))
                    reached << below[other];
                else
                    qFatal("the arrow from %s goes up", qPrintable(room));
            below.insert(room, reached);
        }
        return below;
    }();
    return table;
}

QString contents(const QString &path)
{
    QFile file(QStringLiteral(TAVARO_SOURCE_DIR "/") + path);
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Paths below the source folder, such as "src/data/clock.h".
QStringList filesOf(const QString &folder, const QStringList &patterns)
{
    const QDir top(QStringLiteral(TAVARO_SOURCE_DIR));
    QStringList files;
    QDirIterator walk(top.filePath(folder), patterns, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files << top.relativeFilePath(walk.next());
    files.sort();
    return files;
}

QStringList sources()
{
    return filesOf(u"src"_s, {u"*.h"_s, u"*.cpp"_s});
}

QStringList matches(const QString &text, const QString &pattern)
{
    static QMap<QString, QRegularExpression> compiled;
    QRegularExpression &expression = compiled[pattern];
    if (expression.pattern().isEmpty())
        expression = QRegularExpression(pattern, QRegularExpression::MultilineOption |
                                                     QRegularExpression::UseUnicodePropertiesOption);
    QStringList found;
    for (const QRegularExpressionMatch &match : expression.globalMatch(text))
        found << match.captured(match.lastCapturedIndex());
    return found;
}

/// The includes of a file of `src` that its room does not allow, one line each.
QStringList wrongArrows(const QString &path, const QString &text)
{
    const QString room = path.section(u'/', 1, 1);
    if (!roomsBelow().contains(room))
        return {path + u" stands in a room that has no arrows"_s};
    QStringList wrong;
    for (const QString &included : matches(text, u"^\\s*#\\s*include\\s*\"([^\"]+)\""_s)) {
        const QString other = included.section(u'/', 0, 0);
        const bool isOwnLayout = included == u"ui_"_s + path.section(u'/', -1).section(u'.', 0, 0) + u".h"_s;
        if (!isOwnLayout && other != room && !roomsBelow()[room].contains(other))
            wrong << path + u" includes "_s + included;
    }
    return wrong;
}

/// The Qt headers beyond Qt Core that a file without windows includes, one line each.
QStringList windowsInPlainCode(const QString &path, const QString &text)
{
    static const QString headers = QLibraryInfo::path(QLibraryInfo::HeadersPath);
    if (!matches(path, QStringLiteral(TAVARO_UI_NAMES)).isEmpty())
        return {};
    QStringList wrong;
    for (const QString &included : matches(text, u"^\\s*#\\s*include\\s*[<\"]([Qq][^>\"]+)[>\"]"_s)) {
        const QString inCore = included.contains(u'/') ? included : u"QtCore/"_s + included;
        if (!inCore.startsWith(u"QtCore/") || !QFile::exists(headers + u'/' + inCore))
            wrong << path + u" includes "_s + included;
    }
    return wrong;
}

} // namespace

/// What the compiler does not say about the way the house is built; see docs/architecture.md.
class tst_house : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wrongIncludesAreSeen();
    void includesGoDown();
    void frmNamesScreensOnly();
    void commentsStandOnTheirOwn();
};

void tst_house::wrongIncludesAreSeen()
{
    const auto row = [](const QString &path, const QString &line, bool wrong) {
        QVERIFY2(wrong != (wrongArrows(path, line) + windowsInPlainCode(path, line)).isEmpty(),
                 qPrintable(line));
    };
    row(u"src/data/clock.h"_s, u"#include \"settings/settings.h\""_s, true);
    row(u"src/stock/products.cpp"_s, u"  # include \"entries/side.h\""_s, true);
    row(u"src/entries/frmcliente.cpp"_s, u"#include \"ui_frmcadcli.h\""_s, true);
    row(u"src/garage/car.h"_s, u""_s, true);
    row(u"src/bank/accounts.cpp"_s, u"#include <QtWidgets/QLabel>"_s, true);
    row(u"src/bank/accounts.cpp"_s, u"#include <QColor>"_s, true);
    row(u"src/bank/accounts.cpp"_s, u"#include <QString>\n#include <QtCore/QDate>\n#include <vector>"_s,
        false);
    row(u"src/bank/accountpane.cpp"_s, u"#include <QLabel>\n#include \"ui_accountpane.h\""_s, false);
    row(u"src/entries/side.cpp"_s, u"#include \"data/status.h\"\n#include \"stock/stock.h\""_s, false);
}

void tst_house::includesGoDown()
{
    QVERIFY(sources().size() > 100);
    QStringList wrong;
    for (const QString &path : sources()) {
        const QString text = contents(path);
        wrong << wrongArrows(path, text) << windowsInPlainCode(path, text);
    }
    QCOMPARE(wrong.join(u'\n'), QString());
}

void tst_house::frmNamesScreensOnly()
{
    const QString screenLayout = u"<widget class=\"(?:QDialog|QMainWindow)\" name=\"([^\"]+)\">"_s;
    QStringList wrong;
    for (const QString &path : filesOf(u"src"_s, {u"*.h"_s, u"*.cpp"_s, u"*.ui"_s})) {
        const QString layout = contents(path.section(u'.', 0, 0) + u".ui"_s);
        const QStringList screens = matches(layout, screenLayout);
        const QString name = path.section(u'/', -1).section(u'.', 0, 0);
        const bool isScreen = screens.size() == 1 && screens.front().compare(name, Qt::CaseInsensitive) == 0;
        if (name.startsWith(u"frm") ? !isScreen : !screens.isEmpty())
            wrong << path;
    }
    QCOMPARE(wrong.join(u'\n'), QString());
}

/// A comment gives its reason itself: the number of a section or a ticket says nothing to who does not have
/// that text.
void tst_house::commentsStandOnTheirOwn()
{
    const QString reference =
        u"\\b(?i:part|section|chapter|paragraph|issue|ticket|requirement)s?\\s+(?:no\\.\\s*)?#?\\d"_s;
    QVERIFY(!matches(u"/// See section "_s + u"4.2"_s, reference).isEmpty());
    QStringList found;
    for (const QString &folder : {u"src"_s, u"tests"_s, u"tools"_s, u"bench"_s, u"scripts"_s, u"docs"_s})
        for (const QString &path : filesOf(folder, {u"*"_s}))
            if (!path.endsWith(u".png") && !matches(contents(path), reference).isEmpty())
                found << path;
    QCOMPARE(found.join(u'\n'), QString());
}

QTEST_GUILESS_MAIN(tst_house)

#include "tst_house.moc"
