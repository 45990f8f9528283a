#pragma once

#include "analysis/comparison.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace Ui {
class ComparisonPane;
}

/// Two years, or two months, of one side: the choice, both summaries and their comparison.
class ComparisonPane : public QWidget
{
    Q_OBJECT

public:
    ComparisonPane(const Side &side, comparison::Span span, QWidget *parent = nullptr);
    ~ComparisonPane() override;

private:
    void fillBoxes();
    void nameControls();
    comparison::Period period(std::size_t which) const;
    bool compare();
    void showResult();
    /// Runs `use` on the result that is shown, comparing when there is none yet.
    void withResult(const std::function<void(const comparison::Result &)> &use);
    void save(const QString &title, const QString &filter, const QString &suffix,
              void (*write)(QIODevice &, const comparison::Result &));

    std::unique_ptr<Ui::ComparisonPane> m_ui;
    const Side &m_side;
    comparison::Span m_span;
    std::optional<comparison::Result> m_result;
};
