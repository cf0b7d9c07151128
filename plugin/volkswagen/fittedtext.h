#ifndef FITTEDTEXT_H
#define FITTEDTEXT_H

#include <QLabel>
#include <QToolButton>

/// Texts on one line, whose room is fixed and whose length is the language's: a long one is drawn smaller rather than
/// cut.
namespace FittedText {

/// \a font, or as much smaller as \a text needs for \a width pixels; at least 13 pixels high.
QFont font(const QFont &font, const QString &text, int width);

} // namespace FittedText

/// A label that never asks for more width than its layout has to give.
class FittedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit FittedLabel(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// A button with its icon above its text, or before it where its style is ToolButtonTextBesideIcon.
class FittedButton : public QToolButton
{
    Q_OBJECT

public:
    explicit FittedButton(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif // FITTEDTEXT_H
