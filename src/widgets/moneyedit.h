#pragma once

#include <QLineEdit>

/// A field for an amount: takes digits, "." and one ",", at most two decimals, nothing beyond the limit of
/// formtext, and shows "#,##0.00" on entering and leaving. Pasted text must keep these rules, but may begin
/// with a currency symbol ("R$ 1.234,56"). An empty field stays empty; an amount that the program shows there
/// may be any.
class MoneyEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit MoneyEdit(QWidget *parent = nullptr);

    /// With a prefix such as "R$ " the field shows it while not edited; what is empty or no number on leaving
    /// becomes prefix + "0,00".
    void setPrefix(const QString &prefix);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    bool refuses(QChar typed) const;
    void renderOnLeaving();

    QString m_prefix;
};
