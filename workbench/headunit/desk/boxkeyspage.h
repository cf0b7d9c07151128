#ifndef BOXKEYSPAGE_H
#define BOXKEYSPAGE_H

#include "boxspeaker.h"

#include <QWidget>

class DecoderBox;
class KeyWatch;

/// The keys and knobs of the car: keys stay pressed as long as their button is held, knobs turn by one click
/// or five.
class BoxKeysPage : public QWidget
{
    Q_OBJECT

public:
    /// \a box is not owned and must outlive the page.
    explicit BoxKeysPage(DecoderBox *box, KeyWatch *watch = nullptr, QWidget *parent = nullptr);

private:
    void addKeys(const QString &heading, BoxKey::Source source);
    void addKnobs();

    DecoderBox *m_box;
};

#endif // BOXKEYSPAGE_H
