#include "widgets/dateedit.h"

#include "data/clock.h"
#include "data/dates.h"

#include <QAction>
#include <QApplication>
#include <QCalendarWidget>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int century = 2000; ///< this one

bool isSeparator(QChar character)
{
    return character == u'/' || character == u'-' || character == u'.';
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

/// "050326" → "05/03/26": digits without separators as the parts of a date.
QStringList partsOf(QString text)
{
    std::ranges::replace_if(text, isSeparator, u'/');
    QStringList parts = text.split(u'/', Qt::SkipEmptyParts);
    if (parts.size() == 1 && parts.front().size() >= 4) {
        const QString digits = parts.front();
        parts = {digits.left(2), digits.mid(2, 2)};
        if (digits.size() > 4)
            parts << digits.mid(4);
    }
    return parts;
}

/// Reads a date of which the year, or month and year, may be missing: they are today's. A year of two digits
/// is one of this century, or with `inPast` the last one in which the date is not in the future.
QDate understood(const QString &text, bool inPast)
{
    const QString trimmed = text.trimmed();
    if (const QDate whole = dates::read(trimmed); whole.isValid())
        return whole;
    const QStringList parts = partsOf(trimmed);
    const QDate today = programclock::today();
    std::array<int, 3> numbers{0, today.month(), today.year()};
    if (parts.isEmpty() || parts.size() > qsizetype(numbers.size()))
        return {};
    for (qsizetype i = 0; i < parts.size(); ++i) {
        bool isNumber = false;
        numbers[std::size_t(i)] = parts[i].toInt(&isNumber);
        if (!isNumber || (i < 2 && parts[i].size() > 2))
            return {};
    }
    if (parts.size() == 3) {
        const qsizetype yearDigits = parts[2].size();
        if (yearDigits != 4 && yearDigits > 2)
            return {};
        if (yearDigits <= 2) {
            numbers[2] += century;
            if (inPast && std::array{numbers[2], numbers[1], numbers[0]} >
                              std::array{today.year(), today.month(), today.day()})
                numbers[2] -= 100;
        }
    }
    return {numbers[2], numbers[1], numbers[0]};
}

QIcon calendarIcon(const QWidget *widget)
{
    const QIcon icon = QIcon::fromTheme(u"view-calendar"_s, QIcon::fromTheme(u"office-calendar"_s));
    return icon.isNull() ? widget->style()->standardIcon(QStyle::SP_ArrowDown) : icon;
}

/// The place for `popup` below `field`, or above it near the lower edge of the screen.
QPoint placeFor(const QWidget *popup, const QWidget *field)
{
    const QRect available = field->screen()->availableGeometry();
    const QSize size = popup->sizeHint();
    QPoint place = field->mapToGlobal(QPoint(0, field->height()));
    if (place.y() + size.height() > available.bottom())
        place.setY(field->mapToGlobal(QPoint()).y() - size.height());
    place.setX(std::clamp(place.x(), available.left(),
                          std::max(available.left(), available.right() - size.width())));
    return place;
}

} // namespace

DateEdit::DateEdit(QWidget *parent) : QLineEdit(parent)
{
    static const QRegularExpression characters(uR"(^[\d/.\-\s]*$)"_s);
    setValidator(new QRegularExpressionValidator(characters, this));
    setPlaceholderText(u"dd/mm/aaaa"_s);
    QAction *calendar = addAction(calendarIcon(this), TrailingPosition);
    calendar->setText(u"Calendário"_s);
    calendar->setToolTip(u"Abrir o calendário (F4)"_s);
    connect(calendar, &QAction::triggered, this, &DateEdit::openCalendar);
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (m_marked && (date().isValid() || text().trimmed().isEmpty()))
            mark(false);
    });
}

QDate DateEdit::date() const
{
    return understood(text(), m_inPast);
}

QString DateEdit::dateText() const
{
    return date().isValid() ? dates::shown(date()) : text();
}

void DateEdit::setDate(QDate date)
{
    setText(dates::shown(date));
}

void DateEdit::openCalendar()
{
    if (isReadOnly() || !isEnabled())
        return;
    Q_EMIT calendarOpening();
    auto *popup = new QWidget(this, Qt::Popup);
    popup->setAttribute(Qt::WA_DeleteOnClose);
    popup->installEventFilter(this);
    auto *calendar = new QCalendarWidget(popup);
    calendar->setLocale(QLocale(QLocale::Portuguese, QLocale::Brazil));
    calendar->setSelectedDate(date().isValid() ? date() : programclock::today());
    auto *layout = new QVBoxLayout(popup);
    layout->setContentsMargins({});
    layout->addWidget(calendar);
    const auto choose = [this, popup](QDate chosen) {
        setDate(chosen);
        popup->close();
    };
    connect(calendar, &QCalendarWidget::clicked, popup, choose);
    connect(calendar, &QCalendarWidget::activated, popup, choose);
    popup->move(placeFor(popup, this));
    popup->show();
    calendar->setFocus();
}

bool DateEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Hide && !event->spontaneous()) {
        watched->removeEventFilter(this);
        Q_EMIT calendarClosed();
    }
    return QLineEdit::eventFilter(watched, event);
}

/// Judges a typed character and puts the slash that is due before it. Only at the end of the text are there
/// slashes to put and lengths to watch: whoever edits in the middle knows what to do.
bool DateEdit::acceptsTyped(QChar typed)
{
    if (!isDigit(typed) && !isSeparator(typed))
        return false;
    if (hasSelectedText() || cursorPosition() < text().size())
        return true;
    const QStringList parts = text().split(u'/');
    const bool isLast = parts.size() == 3;
    const qsizetype length = parts.back().size();
    if (isSeparator(typed))
        return !isLast && length > 0;
    if (isLast)
        return length < 4;
    if (length == 2)
        insert(u"/"_s);
    return true;
}

void DateEdit::keyPressEvent(QKeyEvent *event)
{
    const bool isPlain = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    const bool isVertical = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (event->key() == Qt::Key_F4 ||
        (event->key() == Qt::Key_Down && event->modifiers() & Qt::AltModifier)) {
        openCalendar();
        return;
    }
    if (isVertical && isPlain && !isReadOnly()) {
        moveByDays(event->key() == Qt::Key_Up ? 1 : -1);
        return;
    }
    const QString typed = event->text();
    if (isPlain && !isReadOnly() && typed.size() == 1 && typed.front().isPrint()) {
        if (!acceptsTyped(typed.front()))
            QApplication::beep();
        else
            insert(isSeparator(typed.front()) ? u"/"_s : typed);
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void DateEdit::focusOutEvent(QFocusEvent *event)
{
    if (event->reason() != Qt::PopupFocusReason)
        complete();
    QLineEdit::focusOutEvent(event);
}

void DateEdit::moveByDays(int days)
{
    const QDate from = date();
    setDate(from.isValid() ? from.addDays(days) : programclock::today());
    selectAll();
}

void DateEdit::complete()
{
    const QDate completed = date();
    if (completed.isValid() && text() != dates::shown(completed))
        setDate(completed);
    mark(!completed.isValid() && !text().trimmed().isEmpty());
}

void DateEdit::mark(bool wrong)
{
    if (wrong == m_marked)
        return;
    m_marked = wrong;
    if (!wrong) {
        setPalette({});
        setToolTip(m_hint);
        return;
    }
    m_hint = toolTip();
    setToolTip(u"Esta data não existe. Digite dia/mês/ano, por exemplo 31/12/2026."_s);
    QPalette marked = palette();
    const bool isDark = marked.color(QPalette::Base).lightness() < 128;
    marked.setColor(QPalette::Text, isDark ? QColor(0xff, 0x8a, 0x80) : QColor(0xb0, 0x00, 0x20));
    setPalette(marked);
}
