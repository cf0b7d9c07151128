#include "boxkeyspage.h"

#include "carwords.h"
#include "decoderbox.h"
#include "keytestercard.h"
#include "panelcard.h"
#include "panelsearch.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {
const int Gap = 8;
const int Columns = 2;

// The card says already where the key is.
QString title(const BoxKey &key)
{
    const QString place = QStringLiteral("panel_");
    return CarWords::text(key.name.startsWith(place) ? key.name.mid(place.size()) : key.name);
}

} // namespace

BoxKeysPage::BoxKeysPage(DecoderBox *box, KeyWatch *watch, QWidget *parent) : QWidget(parent), m_box(box)
{
    setObjectName(QStringLiteral("sidePage"));
    QVBoxLayout *page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->setSpacing(Gap);
    if (watch) {
        page->addWidget(new KeyTesterCard(watch));
    }
    if (box) {
        addKeys(tr("Keys on the steering wheel"), BoxKey::Wheel);
        addKeys(tr("Keys on the car's panel"), BoxKey::Panel);
        addKnobs();
        if (box->speaker()->keys().isEmpty()) {
            page->addWidget(new PanelCard(tr("This car has no keys")));
        }
    }
    page->addStretch();
}

void BoxKeysPage::addKeys(const QString &heading, BoxKey::Source source)
{
    QGridLayout *grid = nullptr;
    int place = 0;
    for (const BoxKey &key : m_box->speaker()->keys()) {
        if (key.source != source) {
            continue;
        }
        if (!grid) {
            PanelCard *card = new PanelCard(heading);
            layout()->addWidget(card);
            grid = new QGridLayout;
            grid->setSpacing(Gap);
            card->rows()->addLayout(grid);
        }
        QPushButton *button = PanelCard::chip(title(key));
        button->setToolTip(QStringLiteral("0x%1").arg(key.code, 2, 16, QLatin1Char('0')));
        const QString name = key.name;
        connect(button, &QPushButton::pressed, m_box, [this, name] { m_box->keys()->press(name); });
        connect(button, &QPushButton::released, m_box, [this, name] { m_box->keys()->release(name); });
        PanelSearch::name(button, button->text());
        grid->addWidget(button, place / Columns, place % Columns);
        ++place;
    }
}

void BoxKeysPage::addKnobs()
{
    QGridLayout *grid = nullptr;
    for (const BoxKey &key : m_box->speaker()->keys()) {
        if (key.source != BoxKey::Knob) {
            continue;
        }
        if (!grid) {
            PanelCard *card = new PanelCard(tr("Knobs"));
            layout()->addWidget(card);
            grid = new QGridLayout;
            grid->setSpacing(Gap);
            grid->setColumnStretch(0, 1);
            card->rows()->addLayout(grid);
        }
        const int row = grid->rowCount();
        QLabel *label = new QLabel(title(key));
        label->setObjectName(QStringLiteral("controlName"));
        PanelSearch::name(label, label->text());
        grid->addWidget(label, row, 0);
        for (const int clicks : {1, 5}) {
            QPushButton *button = PanelCard::chip(QStringLiteral("%1×").arg(clicks));
            PanelSearch::name(button, label->text());
            const QString name = key.name;
            connect(button, &QPushButton::clicked, m_box,
                    [this, name, clicks] { m_box->keys()->turn(name, clicks); });
            grid->addWidget(button, row, clicks == 1 ? 1 : 2);
        }
    }
}
