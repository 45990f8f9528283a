#include "app/frmconfigsoft.h"

#include "ui_frmconfigsoft.h"

#include "data/changes.h"
#include "data/schema.h"
#include "settings/autostart.h"
#include "settings/palette.h"
#include "settings/programfolder.h"
#include "widgets/background.h"
#include "widgets/files.h"
#include "widgets/messages.h"

#include <QFontDatabase>
#include <QPainter>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace {

QString localDatabase()
{
    return programfolder::file(schema::fileName.toString());
}

/// Shows `text`, which may be none of the choices, such as a font that this machine lacks.
void showChoice(QComboBox *box, const QString &text)
{
    if (box->findText(text) < 0)
        box->insertItem(0, text);
    box->setCurrentText(text);
}

QIcon swatch(QRgb rgb, const QWidget *screen)
{
    QPixmap pixmap(QSize(32, 16));
    pixmap.fill(QColor(rgb));
    QPainter painter(&pixmap);
    painter.setPen(screen->palette().color(QPalette::Mid));
    painter.drawRect(pixmap.rect().adjusted(0, 0, -1, -1));
    return pixmap;
}

void fillPalette(QComboBox *box)
{
    box->setIconSize(QSize(32, 16));
    for (const palette::Colour &colour : palette::colours())
        box->addItem(swatch(*palette::rgb(colour.number), box), colour.name.toString());
}

/// An index that is none of the palette's leaves the box without a choice.
void showColour(QComboBox *box, const settings::Key &index)
{
    bool isNumber = false;
    const int chosen = settings::value(index).toInt(&isNumber);
    box->setCurrentIndex(isNumber && chosen >= 0 && chosen < box->count() ? chosen : -1);
}

QString digit(bool on)
{
    return on ? u"1"_s : u"0"_s;
}

} // namespace

frmConfigSoft::frmConfigSoft(QWidget *parent) : QDialog(parent), m_ui(std::make_unique<Ui::frmConfigSoft>())
{
    m_ui->setupUi(this);
    background::apply(this);
    m_ui->cboffonte->addItems(QFontDatabase::families());
    for (const int size : {8, 9, 10, 11, 12, 14, 16, 18, 20, 24})
        m_ui->cboftamanho->addItem(QString::number(size));
    for (QComboBox *box : {m_ui->cbocorfonte, m_ui->cbocorfundo1, m_ui->cbocorfundo2})
        fillPalette(box);
    load();

    connectStart();
    connectDatabase();
    connectReports();
    connectLists();
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::reject);
}

frmConfigSoft::~frmConfigSoft() = default;

void frmConfigSoft::load()
{
    const QScopedValueRollback loading(m_loading, true);
    m_ui->chkiniciar->setChecked(settings::isOn(settings::startWithSystem));
    m_ui->chkalertavenc->setChecked(settings::isOn(settings::dueAlerts));
    m_ui->chkatualizar->setChecked(settings::isOn(settings::updateBalances));
    m_ui->chkdica->setChecked(settings::value(settings::tipOfTheDay) != u"0");

    m_ui->chkrede->setChecked(settings::isOn(settings::networkOn));
    const QString database = settings::value(settings::databasePath);
    m_ui->txtcaminho->setText(database == settings::databasePath.defaultValue ? localDatabase() : database);

    const bool descending = settings::value(settings::viewOrder).compare(u"DESC", Qt::CaseInsensitive) == 0;
    (descending ? m_ui->optdesc : m_ui->optasc)->setChecked(true);

    showChoice(m_ui->cboffonte, settings::value(settings::fontName));
    showChoice(m_ui->cboftamanho, settings::value(settings::fontSize));
    showColour(m_ui->cbocorfonte, settings::textColourIndex);
    showColour(m_ui->cbocorfundo1, settings::firstBackgroundIndex);
    showColour(m_ui->cbocorfundo2, settings::secondBackgroundIndex);

    m_ui->txtnome->setText(settings::value(settings::companyName));
    m_ui->txtslogan->setText(settings::value(settings::companySlogan));
}

void frmConfigSoft::connectStart()
{
    connect(m_ui->chkiniciar, &QCheckBox::toggled, this, [this](bool on) {
        store([this, on] {
            const QString message = autostart::setEnabled(on);
            if (!message.isEmpty())
                messages::exclamation(this, u"Erro"_s, message);
        });
    });
    connect(m_ui->chkalertavenc, &QCheckBox::toggled, this, [this](bool on) {
        store(
            [on] { settings::setValue(on ? settings::dueAlerts : settings::dueAlertsMisspelt, digit(on)); });
    });
    storesSwitch(m_ui->chkatualizar, settings::updateBalances);
    storesSwitch(m_ui->chkdica, settings::tipOfTheDay);
}

void frmConfigSoft::connectDatabase()
{
    connect(m_ui->chkrede, &QCheckBox::toggled, this, [this](bool on) {
        store([this, on] {
            settings::setValue(settings::networkOn, digit(on));
            settings::setValue(settings::databasePath, on ? m_ui->txtcaminho->text()
                                                          : settings::databasePath.defaultValue.toString());
            if (!on)
                m_ui->txtcaminho->setText(localDatabase());
        });
    });
    connect(m_ui->cmdlocal, &QPushButton::clicked, this, &frmConfigSoft::chooseDatabase);
}

void frmConfigSoft::connectReports()
{
    storesText(m_ui->txtnome, settings::companyName);
    storesText(m_ui->txtslogan, settings::companySlogan);
}

void frmConfigSoft::connectLists()
{
    connect(m_ui->optasc, &QRadioButton::toggled, this, [this](bool ascending) {
        store([ascending] { settings::setValue(settings::viewOrder, ascending ? u"ASC"_s : u"DESC"_s); });
    });
    connect(m_ui->cboffonte, &QComboBox::currentTextChanged, this, [this](const QString &name) {
        store([&name] { settings::setValue(settings::fontName, name); });
    });
    connect(m_ui->cboftamanho, &QComboBox::currentTextChanged, this, [this](const QString &size) {
        store([&size] { settings::setValue(settings::fontSize, size); });
    });
    storesColour(m_ui->cbocorfonte, settings::textColour, settings::textColourIndex);
    storesColour(m_ui->cbocorfundo1, settings::firstBackground, settings::firstBackgroundIndex);
    storesColour(m_ui->cbocorfundo2, settings::secondBackground, settings::secondBackgroundIndex);
}

void frmConfigSoft::store(const std::function<void()> &write)
{
    if (m_loading)
        return;
    if (messages::guarded(this, messages::generalPrefix, write))
        Changes::announce(Subject::Settings);
    else
        load();
}

void frmConfigSoft::storesSwitch(QCheckBox *box, const settings::Key &key)
{
    connect(box, &QCheckBox::toggled, this,
            [this, key](bool on) { store([&key, on] { settings::setValue(key, digit(on)); }); });
}

void frmConfigSoft::storesText(QLineEdit *field, const settings::Key &key)
{
    connect(field, &QLineEdit::textChanged, this,
            [this, key](const QString &text) { store([&key, &text] { settings::setValue(key, text); }); });
}

void frmConfigSoft::storesColour(QComboBox *box, const settings::Key &colour, const settings::Key &index)
{
    connect(box, &QComboBox::currentIndexChanged, this, [this, colour, index](int chosen) {
        store([&colour, &index, chosen] {
            settings::setValue(colour, palette::colours().at(std::size_t(chosen)).number.toString());
            settings::setValue(index, QString::number(chosen));
        });
    });
}

void frmConfigSoft::chooseDatabase()
{
    const QString file = files::open(this, u"Abrir Banco de dados em rede"_s,
                                     u"Arquivos de Banco de dados do software (*.qorvex)"_s);
    if (file.isEmpty())
        return;
    store([this, &file] {
        settings::setValue(settings::databasePath, file);
        m_ui->txtcaminho->setText(file);
    });
}
