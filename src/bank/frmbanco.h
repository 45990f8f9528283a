#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmbanco;
}

/// The account screen: creates a bank or cash account, or, as `frmeditarbanco`, changes the opening balance
/// and the notes of one. Announces Subject::Accounts after saving.
class frmbanco : public QDialog
{
    Q_OBJECT

public:
    explicit frmbanco(QWidget *parent = nullptr);
    ~frmbanco() override;

    /// Shows an empty screen for a new account.
    static frmbanco *openNew(QWidget *parent);
    /// Shows the account; null, with a message, when it is no longer there.
    static frmbanco *openEdit(const QString &name, QWidget *parent);

private:
    void save();

    std::unique_ptr<Ui::frmbanco> m_ui;
    QString m_editedName; ///< empty for a new account
};
