#pragma once

#include "sales/stocklists.h"
#include "widgets/listpane.h"

#include <memory>

namespace Ui {
class StockListPane;
}

/// Names of the controls of one filtered list of the stock screen.
struct StockListNames
{
    QString period, status, product, contact; ///< filter boxes
    QString list, totals;
    QString contactLabel;
};

/// The sales or the purchases on the stock screen: filter boxes, list and totals line.
class StockListPane : public ListPane
{
    Q_OBJECT

public:
    StockListPane(const StockKind &kind, const StockListNames &names, QWidget *parent = nullptr);
    ~StockListPane() override;

    const StockKind &kind() const { return m_kind; }
    QString totals() const { return totalsText(); }
    QString filterText() const { return stocklists::filterText(m_kind, filter()); }

protected:
    QString query() const override;
    QString totalsText() const override;
    /// The products and contacts that the entries name.
    void refillFilterBoxes() override;

private:
    StockFilter filter() const;

    std::unique_ptr<Ui::StockListPane> m_ui;
    const StockKind &m_kind;
};
