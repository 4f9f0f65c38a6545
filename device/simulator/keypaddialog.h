// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KEYPADDIALOG_H
#define KEYPADDIALOG_H

#include "keypadframe.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QKeyEvent>

/// What stands behind each of the three public classes: the one dialog of its kind, with a
/// KeypadFrame inside. The public classes have no members, so all that they do lies here.
template<class Keypad>
class KeypadDialog : public Keypad
{
public:
    /// Made at the first use and deleted with the application.
    static KeypadDialog *instance(const KeypadFace &face)
    {
        if (!s_instance) {
            s_instance = new KeypadDialog(face);
            qAddPostRoutine(destroyInstance);
        }
        return s_instance;
    }

    /// The inside of \a keypad, which instance() has made.
    static KeypadFrame *frameOf(Keypad *keypad)
    {
        return static_cast<KeypadDialog *>(keypad)->m_frame;
    }

    void setVisible(bool visible) override
    {
        const bool wasOpen = isOpen();
        if (visible && !wasOpen)
            this->setGeometry(takePlace());
        Keypad::setVisible(visible);
        // The dialog's first focus event selects the whole text; begin() has the last word.
        if (visible && !wasOpen)
            appear();
        else if (wasOpen && !visible)
            disappear();
    }

    void accept() override
    {
        if (m_frame->isAcceptable())
            Keypad::accept();
        else
            m_frame->explain();
    }

    void done(int result) override
    {
        if (result == QDialog::Accepted && isOpen())
            m_frame->deliver();
        Keypad::done(result);
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            accept();
        else
            Keypad::keyPressEvent(event);
    }

    void resizeEvent(QResizeEvent *event) override
    {
        Keypad::resizeEvent(event);
        m_frame->setGeometry(this->rect());
    }

private:
    explicit KeypadDialog(const KeypadFace &face) : m_frame(new KeypadFrame(face, this))
    {
        this->setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
        this->setAttribute(Qt::WA_QuitOnClose, false);
        this->connect(m_frame, SIGNAL(accepted()), SLOT(accept()));
        this->connect(m_frame, SIGNAL(rejected()), SLOT(reject()));
    }

    static void destroyInstance()
    {
        delete s_instance;
        s_instance = nullptr;
    }

    /// Not by isVisible(): on X11 the older toolkit takes a window for visible for ever when it was
    /// hidden before the server had mapped it.
    bool isOpen() const { return !this->isHidden(); }

    /// A size that the caller has set is a wish: a keypad has to fit the screen. Fixing the size
    /// counts as one too, and must not stay for the next caller.
    QRect takePlace()
    {
        const QSize wish = this->testAttribute(Qt::WA_Resized) ? this->size() : QSize();
        this->setMinimumSize(0, 0);
        this->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        return m_frame->place(screenRect(), wish);
    }

    /// The panel's screen. A host that shows its screen in a window names it by a property.
    QRect screenRect() const
    {
        const QRect named = qApp->property("hmiScreen").toRect();
        if (!named.isEmpty())
            return named;
        QWidget *caller = qobject_cast<QWidget *>(m_frame->request().object);
        if (!caller)
            caller = QApplication::activeWindow();
        return caller ? QApplication::desktop()->availableGeometry(caller)
                      : QApplication::desktop()->availableGeometry();
    }

    void appear()
    {
        this->activateWindow();
        m_frame->setFocus();
        m_frame->begin();
    }

    void disappear()
    {
        m_frame->end();
        this->setAttribute(Qt::WA_Resized, false);
    }

    static KeypadDialog *s_instance;

    KeypadFrame *m_frame;
};

template<class Keypad>
KeypadDialog<Keypad> *KeypadDialog<Keypad>::s_instance = nullptr;

#endif // KEYPADDIALOG_H
