#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class FirstStepsPane;
}
struct FirstSteps;

/// Leads somebody with an empty file to the first entry, in three steps that can be skipped. It goes when all
/// are done.
class FirstStepsPane : public QWidget
{
    Q_OBJECT

public:
    explicit FirstStepsPane(QWidget *parent = nullptr);
    ~FirstStepsPane() override;

    /// Shows what is done and what comes next; reads the database. Throws Error.
    void refresh();

private:
    void editFirstAccount();
    void skip();

    std::unique_ptr<Ui::FirstStepsPane> m_ui;
};
