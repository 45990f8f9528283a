#pragma once

#include "data/progress.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QPointer>

#include <memory>

namespace Ui {
class frmCarregando;
}

/// The wait screen: a title, a text and a progress bar over a count.
class frmCarregando : public QDialog
{
    Q_OBJECT

public:
    explicit frmCarregando(QWidget *parent = nullptr);
    ~frmCarregando() override;

    void setTexts(const QString &title, const QString &text);
    /// The bar ranges over the count of what is done.
    void setRange(qint64 total);
    void setDone(qint64 done);

protected:
    void reject() override {} ///< the work cannot be left half done

private:
    std::unique_ptr<Ui::frmCarregando> m_ui;
};

/// Shows the wait screen while a long piece of work runs: never for work too short to see, at most some fifty
/// repaints in all. The screen goes when this object does. Pending paint events run; the user's input waits.
class WaitProgress : public Progress
{
public:
    WaitProgress(QWidget *parent, QString title, QString text);
    ~WaitProgress() override;
    Q_DISABLE_COPY_MOVE(WaitProgress)

    void begin(std::function<qint64()> total) override;
    void advance(qint64 done) override
    {
        if (done >= m_nextCheck)
            check(done);
    }

private:
    void check(qint64 done);
    void show();

    QWidget *m_parent;
    QString m_title, m_text;
    std::function<qint64()> m_total;
    QElapsedTimer m_clock;
    QPointer<frmCarregando> m_screen;
    qint64 m_nextCheck = 0;
    qint64 m_step = 1;
};
