#pragma once

#include "analysis/projection.h"

#include <QWidget>

#include <memory>
#include <optional>

namespace Ui {
class ProjectionPane;
}

/// One side's half of the projection screen: month, year and goal, and what came of them.
class ProjectionPane : public QWidget
{
    Q_OBJECT

public:
    explicit ProjectionPane(const Side &side, QWidget *parent = nullptr);
    ~ProjectionPane() override;

private:
    void nameControls();
    bool compute();
    /// Runs `use` on the result that is shown, computing one when there is none yet.
    void withResult(const std::function<void(const projection::Result &)> &use);
    void save(const QString &kind, const QString &filter,
              void (*write)(QIODevice &, const projection::Result &));

    std::unique_ptr<Ui::ProjectionPane> m_ui;
    const Side &m_side;
    std::optional<projection::Result> m_result;
};
