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
    static constexpr int tooShortToSee = 300; ///< milliseconds of work for which no screen is shown

    explicit frmCarregando(QWidget *parent = nullptr);
    ~frmCarregando() override;

    void setTexts(const QString &title, const QString &text);
    /// The bar ranges over the count of what is done.
    void setRange(qint64 total);
    void setDone(qint64 done);
    /// Offers to give the work up; without this it cannot be left half done.
    void offerCancel();
    bool isCancelled() const { return m_cancelled; }

protected:
    void reject() override; ///< Esc

private:
    std::unique_ptr<Ui::frmCarregando> m_ui;
    bool m_cancelled = false;
};

/// Shows the wait screen while a long piece of work runs: never for work too short to see, at most some fifty
/// repaints in all. The screen goes when this object does. Pending paint events run; the user's input waits,
/// but for Esc where the work may be given up: then advance() throws Cancelled.
class WaitProgress : public Progress
{
public:
    enum class Cancel { Never, Allowed };

    WaitProgress(QWidget *parent, QString title, QString text, Cancel cancel = Cancel::Never);
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
    Cancel m_cancel;
    std::function<qint64()> m_total;
    QElapsedTimer m_clock;
    QPointer<frmCarregando> m_screen;
    qint64 m_nextCheck = 0;
    qint64 m_step = 1;
};
