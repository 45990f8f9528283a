#include "widgets/listmenu.h"

#include "lists/spreadsheet.h"
#include "widgets/files.h"
#include "widgets/frmcarregando.h"
#include "widgets/listview.h"
#include "widgets/messages.h"

#include <QHeaderView>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

constexpr int shownAgain = 100; ///< pixels of a column that nothing is known of

using Save = std::function<void(const QString &path, const TableSource &shown, Progress &progress)>;

void save(ListView &list, const QString &title, const QString &filter, const QString &suffix,
          const Save &write)
{
    QWidget *over = list.window();
    Q_EMIT list.wholeListWanted();
    const std::shared_ptr<const TableSource> shown = list.tableSource();
    const QString path = files::save(over, title, filter, suffix);
    if (path.isEmpty())
        return;
    const bool saved = messages::guarded(over, messages::generalPrefix, [&] {
        WaitProgress progress(over, u"Salvando lista"_s,
                              u"Por favor aguarde enquanto o arquivo é gravado."_s);
        write(path, *shown, progress);
    });
    if (saved)
        files::offerToOpen(over, path);
}

} // namespace

ListMenu::ListMenu(ListView &list) : QObject(&list), m_list(list)
{
    list.header()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list.header(), &QWidget::customContextMenuRequested, this,
            [this](const QPoint &place) { popUp(m_list.header()->mapToGlobal(place)); });
}

void ListMenu::open()
{
    popUp(m_list.header()->mapToGlobal(QPoint(0, m_list.header()->height())));
}

void ListMenu::popUp(const QPoint &place)
{
    auto *menu = new QMenu(&m_list);
    menu->setObjectName(u"poplista"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto command = [&](const QString &text, const QString &name, void (ListMenu::*run)()) {
        QAction *action = menu->addAction(text, this, run);
        action->setObjectName(name);
        action->setEnabled(m_list.rowCount() > 0);
    };
    command(u"Salvar como &planilha (XLSX)..."_s, u"popxlsx"_s, &ListMenu::saveXlsx);
    command(u"Salvar como &CSV..."_s, u"popcsv"_s, &ListMenu::saveCsv);
    menu->addSection(u"Colunas"_s);
    addColumns(*menu);
    menu->popup(place);
}

/// The last column that is shown stays.
void ListMenu::addColumns(QMenu &menu)
{
    QHeaderView &header = *m_list.header();
    int shown = 0;
    for (int column = 0; column < header.count(); ++column)
        shown += header.sectionSize(column) > 0;
    for (int position = 0; position < header.count(); ++position) {
        const int column = header.logicalIndex(position);
        const bool isShown = header.sectionSize(column) > 0;
        QAction *action = menu.addAction(m_list.table().columns()[std::size_t(column)].title);
        action->setCheckable(true);
        action->setChecked(isShown);
        action->setEnabled(!isShown || shown > 1);
        connect(action, &QAction::toggled, this, [this, column](bool on) { showColumn(column, on); });
    }
}

void ListMenu::showColumn(int column, bool shown)
{
    const int given = m_list.table().columns()[std::size_t(column)].width;
    m_list.header()->resizeSection(column, !shown ? 0 : given > 0 ? given : shownAgain);
}

void ListMenu::saveCsv()
{
    save(m_list, u"Salvar lista em CSV"_s, u"Arquivos CSV(*.csv)"_s, u"csv"_s,
         [](const QString &path, const TableSource &shown, Progress &progress) {
             spreadsheet::saveCsv(path, shown, &progress);
         });
}

void ListMenu::saveXlsx()
{
    const QString title = m_list.window()->windowTitle();
    save(m_list, u"Salvar lista como planilha"_s, u"Planilhas(*.xlsx)"_s, u"xlsx"_s,
         [title](const QString &path, const TableSource &shown, Progress &progress) {
             spreadsheet::saveXlsx(path, title, shown, &progress);
         });
}
