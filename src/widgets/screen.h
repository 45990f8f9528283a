#pragma once

#include <QDialog>

#include <functional>
#include <memory>

class Connection;

/// What the data screens share. A screen is deleted when it is closed, shows the background picture, moves on
/// with Enter, takes texts of any length, and is modal over a dialog that opened it. A row that it changes is
/// written only into the file from which it was read.
class Screen : public QDialog
{
    Q_OBJECT

protected:
    explicit Screen(QWidget *parent, Qt::WindowFlags flags = {});
    /// Prepares the controls; called once, when they exist.
    void prepare();

    /// Runs `read`. A failure is told, over the parent while the screen is not shown yet, and gives false.
    bool load(const std::function<void(Connection &)> &read);
    /// load() of what later writes change; they refuse to when another file has taken the place of this one.
    bool loadForChange(const std::function<void(Connection &)> &read);
    /// loadForChange() of one row, as `read` says whether it is still there; `listed` is the file() of the
    /// list that named it, or 0. False, after the message, when it is not.
    bool loadRow(quint64 listed, const QString &title, const QString &goneMessage,
                 const std::function<bool(Connection &)> &read);
    /// Runs `work`; a failure is told behind `prefix` and gives false.
    bool write(QStringView prefix, const std::function<void(Connection &)> &work);
    /// write() of what was typed; then closes the screen. The rest of the program hears of the change after
    /// that.
    bool saveAndClose(const std::function<void(Connection &)> &work);
    /// The serial of the connection through which loadForChange() read; 0 when nothing was read.
    quint64 file() const { return m_file; }
    /// From here on the screen writes a new row, in whichever file is the database.
    void forgetFile() { m_file = 0; }

    /// Where messages belong: the screen, or its parent while it is not shown yet.
    QWidget *place();

    template <typename Shown>
    static Shown *shown(std::unique_ptr<Shown> screen)
    {
        screen->show();
        return screen.release();
    }
    /// The screen with the name that `parent` shows already, brought to the front; null when there is none.
    template <typename Shown>
    static Shown *raised(QWidget *parent, const QString &name)
    {
        for (auto *screen : parent ? parent->findChildren<Shown *>(name) : QList<Shown *>())
            if (screen->isVisible()) { // one that was closed may still have to be deleted
                screen->raise();
                screen->activateWindow();
                return screen;
            }
        return nullptr;
    }

private:
    quint64 m_file = 0;
};
