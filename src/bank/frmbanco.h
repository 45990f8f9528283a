#pragma once

#include "widgets/screen.h"

namespace Ui {
class frmbanco;
}

/// The account screen: creates a bank or cash account, or, as `frmeditarbanco`, changes the opening balance
/// and the notes of one.
class frmbanco : public Screen
{
    Q_OBJECT

public:
    explicit frmbanco(QWidget *parent = nullptr);
    ~frmbanco() override;

    /// Shows an empty screen for a new account.
    static frmbanco *openNew(QWidget *parent);
    /// Shows the account; null, with a message, when it is no longer there or another file than the
    /// one with the serial `listed` is the database (0: any).
    static frmbanco *openEdit(const QString &name, QWidget *parent, quint64 listed = 0);

private:
    void save();

    std::unique_ptr<Ui::frmbanco> m_ui;
    QString m_editedName; ///< empty for a new account
};
