#include "app/frmdica.h"
#include "ui_frmdica.h"

#include "data/changes.h"
#include "settings/settings.h"
#include "settings/tips.h"
#include "widgets/messages.h"

#include <QSignalBlocker>

using namespace Qt::StringLiterals;

frmDica::frmDica(QWidget *parent)
    : Screen(parent), m_ui(std::make_unique<Ui::frmDica>()), m_tips(tips::read())
{
    m_ui->setupUi(this);
    prepare();
    m_ui->chkdicadia->setChecked(tips::areShown());
    showTip();
    connect(m_ui->cmdNextTip, &QPushButton::clicked, this, &frmDica::showTip);
    connect(m_ui->chkdicadia, &QCheckBox::toggled, this, &frmDica::setShownAtStart);
    connect(m_ui->cmdok, &QPushButton::clicked, this, &QDialog::close);
}

frmDica::~frmDica() = default;

frmDica *frmDica::open(QWidget *parent)
{
    if (auto *screen = raised<frmDica>(parent, u"frmDica"_s))
        return screen;
    return shown(std::unique_ptr<frmDica>(new frmDica(parent)));
}

void frmDica::showTip()
{
    m_ui->lblTipText->setText(m_tips ? tips::pick(*m_tips) : tips::missingText());
    m_ui->cmdNextTip->setEnabled(m_tips && m_tips->size() > 1);
}

void frmDica::setShownAtStart(bool isShown)
{
    messages::guarded(this, messages::generalPrefix,
                      [isShown] { settings::setValue(settings::tipOfTheDay, isShown ? u"1"_s : u"0"_s); });
    const QSignalBlocker quiet(m_ui->chkdicadia);
    m_ui->chkdicadia->setChecked(settings::value(settings::tipOfTheDay) != "0"_L1); // what is stored
    Changes::announce(Subject::Settings);
}
