#include "widgets/listfinder.h"

#include "widgets/listview.h"
#include "widgets/messages.h"
#include "widgets/waittext.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include <utility>

using namespace Qt::StringLiterals;

ListFinder::ListFinder(ListView &list)
    : QObject(&list),
      m_list(list),
      m_bar(new QFrame(&list)),
      m_text(new QLineEdit(m_bar)),
      m_count(new QLabel(m_bar)),
      m_work(&list)
{
    m_bar->setFrameShape(QFrame::StyledPanel);
    m_bar->setAutoFillBackground(true);
    m_text->setObjectName(u"txtlocalizar"_s);
    m_text->setAccessibleName(u"Localizar na lista"_s);
    m_text->setPlaceholderText(u"Localizar na lista"_s);
    m_text->setMinimumWidth(220);
    m_count->setObjectName(u"lbllocalizar"_s);
    auto *end = new QToolButton(m_bar);
    end->setObjectName(u"cmdlocalizarfechar"_s);
    end->setIcon(QIcon::fromTheme(u"dialog-close"_s));
    end->setToolTip(u"Mostrar a lista inteira (Esc)"_s);
    end->setAccessibleName(u"Mostrar a lista inteira"_s);
    end->setAutoRaise(true);
    auto *layout = new QHBoxLayout(m_bar);
    layout->setContentsMargins(4, 4, 4, 4);
    for (QWidget *part : std::initializer_list<QWidget *>{m_text, m_count, end})
        layout->addWidget(part);
    m_bar->hide();
    connect(m_text, &QLineEdit::textChanged, this, &ListFinder::narrow);
    connect(end, &QToolButton::clicked, this, &ListFinder::close);
    m_text->installEventFilter(this);
    list.installEventFilter(this);
}

ListFinder::~ListFinder() = default;

void ListFinder::open()
{
    m_bar->show();
    place();
    m_text->setFocus();
    m_text->selectAll();
    if (!m_index)
        readRows();
}

void ListFinder::close()
{
    const std::optional<qint64> selected = selectedKey();
    m_work.cancel();
    widen();
    m_index.reset();
    m_bar->hide();
    m_text->clear();
    if (selected)
        select(*selected);
    m_list.setFocus();
}

void ListFinder::suspend()
{
    m_work.cancel();
    widen();
    m_index.reset();
    m_suspended = true;
}

void ListFinder::resume()
{
    if (std::exchange(m_suspended, false) && !m_bar->isHidden()) // the list may stand in a tab at the back
        readRows();
}

void ListFinder::readRows()
{
    Q_EMIT m_list.wholeListWanted();
    if (m_suspended) // it could not be read
        return;
    const auto index = std::make_shared<FindIndex>(m_list.tableSource());
    m_count->setText(u"lendo…"_s);
    messages::guarded(m_list.window(), messages::generalPrefix, [&] {
        m_work.start({.title = u"Localizar na lista"_s,
                      .text = listWaitText(),
                      .run = [index](const QDeadlineTimer &until) { return index->run(until); },
                      .interrupted = {},
                      .done =
                          [this, index] {
                              m_index = index;
                              narrow();
                          },
                      .failed =
                          [this](const Error &error) {
                              messages::error(m_list.window(), messages::generalPrefix, error);
                          },
                      .total = [index] { return qint64(index->rowCount()); },
                      .progress = [index] { return qint64(index->rowsRead()); }});
    });
}

void ListFinder::narrow()
{
    if (!m_index)
        return;
    const std::optional<qint64> selected = selectedKey();
    widen();
    const std::vector<int> rows = m_index->find(m_text->text());
    m_count->setText(u"%1 de %2"_s.arg(rows.size()).arg(m_index->rowCount()));
    place();
    TableModel &table = m_list.table();
    if (int(rows.size()) == m_index->rowCount()) {
        // nothing to narrow
    } else if (const KeyedRows *all = table.keyed()) {
        m_all = all;
        m_found = std::make_unique<KeyedRows>(all->only(rows));
        table.showKeyed(m_found.get());
    } else {
        table.keepOnly(rows);
    }
    if (selected)
        select(*selected);
}

/// What names the selected row, however many others are shown.
std::optional<qint64> ListFinder::selectedKey() const
{
    const int row = m_list.selectedRow();
    if (row < 0)
        return std::nullopt;
    const TableModel &table = m_list.table();
    return table.keyed() ? table.keyed()->key(row) : table.heldRow(row);
}

void ListFinder::select(qint64 key)
{
    const TableModel &table = m_list.table();
    if (table.keyed()) {
        m_list.selectRow(table.keyed()->rowOf(key));
        return;
    }
    for (int row = 0; row < table.rowCount(); ++row)
        if (table.heldRow(row) == key)
            return m_list.selectRow(row);
}

void ListFinder::widen()
{
    if (m_found)
        m_list.table().showKeyed(m_all);
    m_found.reset();
    m_list.table().keepAll();
}

void ListFinder::place()
{
    m_bar->adjustSize();
    const QRect inside = m_list.viewport()->geometry();
    m_bar->move(inside.right() - m_bar->width() - 4, inside.bottom() - m_bar->height() - 4);
}

bool ListFinder::eventFilter(QObject *object, QEvent *event)
{
    if (object == &m_list) {
        if (event->type() == QEvent::Resize && m_bar->isVisible())
            place();
        return false;
    }
    if (event->type() != QEvent::KeyPress)
        return false;
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Escape:
        close();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        m_list.setFocus();
        if (m_list.selectedRow() < 0 && m_list.rowCount() > 0)
            m_list.selectRow(0);
        return true;
    default:
        return false;
    }
}
