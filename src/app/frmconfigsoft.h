#pragma once

#include "settings/settings.h"

#include <QDialog>

#include <functional>
#include <memory>

namespace Ui {
class frmConfigSoft;
}

class QCheckBox;
class QComboBox;
class QLineEdit;

/// The settings screen. Every control shows a setting and stores it the moment it is changed; when that
/// fails, the user is told and the controls show what is stored.
class frmConfigSoft : public QDialog
{
    Q_OBJECT

public:
    explicit frmConfigSoft(QWidget *parent = nullptr);
    ~frmConfigSoft() override;

private:
    void load();
    void connectStart();
    void connectDatabase();
    void connectReports();
    void connectLists();

    /// Runs `write` unless load() is at work, and tells the open screens.
    void store(const std::function<void()> &write);
    void storesSwitch(QCheckBox *box, const settings::Key &key);
    void storesText(QLineEdit *field, const settings::Key &key);
    void storesColour(QComboBox *box, const settings::Key &colour, const settings::Key &index);
    void chooseDatabase();

    std::unique_ptr<Ui::frmConfigSoft> m_ui;
    bool m_loading = false;
};
