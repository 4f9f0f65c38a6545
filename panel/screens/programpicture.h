// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMPICTURE_H
#define PROGRAMPICTURE_H

#include "screens/picturemaker.h"

#include <QWidget>

class CoilView;
class QLabel;

/// The coil of a stored program, to be looked at before the program is opened; drawn beside the
/// event loop. Two fingers come closer, as on the screen Preview.
class ProgramPicture : public QWidget
{
    Q_OBJECT

public:
    explicit ProgramPicture(QWidget *parent = nullptr);

    /// Words in the place of a picture, which goes.
    void say(const QString &words);
    /// Draws what \a model winds. Its first coil, if there are several.
    void draw(const WindingModel &model);
    CoilView *view() const { return m_view; }
    /// Whether a picture is under way.
    bool isDrawing() const { return m_maker.isRunning(); }

Q_SIGNALS:
    /// The picture is on the screen.
    void drawn();

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void order();
    void take(const PictureMaker::Picture &picture);

    CoilView *m_view;
    QLabel *m_words;
    WindingModel m_model;
    bool m_hasModel = false;
    PictureMaker m_maker;
};

#endif // PROGRAMPICTURE_H
