#include "unitpage.h"

#include "panelcard.h"

#include <QButtonGroup>
#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

const int Gap = 8;

struct Language
{
    const char *code;
    const char *name; // in that language, so that everyone finds the own one
};

const Language LanguageRows[] = {{"en", "English"},  {"de", "Deutsch"}, {"zh_CN", "简体中文"},
                                 {"fr", "Français"}, {"es", "Español"}, {"ru", "Русский"}};

} // namespace

UnitPage::UnitPage(QWidget *parent)
    : QWidget(parent)
    , m_diskCard(new PanelCard(QString()))
    , m_diskState(new QLabel)
    , m_choose(PanelCard::chip())
    , m_toggle(PanelCard::chip())
    , m_languageCard(new PanelCard(QString()))
    , m_languages(new QButtonGroup(this))
{
    setObjectName(QStringLiteral("sidePage"));
    QVBoxLayout *page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->setSpacing(Gap);
    page->addWidget(m_diskCard);
    page->addWidget(m_languageCard);
    page->addStretch();

    m_diskState->setObjectName(QStringLiteral("controlName"));
    m_diskState->setTextFormat(Qt::PlainText);
    m_diskState->setWordWrap(true);
    m_diskCard->rows()->addWidget(m_diskState);
    QHBoxLayout *buttons = new QHBoxLayout;
    buttons->setSpacing(Gap);
    buttons->addWidget(m_choose);
    buttons->addWidget(m_toggle);
    m_diskCard->rows()->addLayout(buttons);
    connect(m_choose, &QPushButton::clicked, this, &UnitPage::chooseFolder);
    connect(m_toggle, &QPushButton::clicked, this, &UnitPage::toggleDisk);

    for (const Language &language : LanguageRows) {
        QPushButton *button = PanelCard::chip(QString::fromUtf8(language.name));
        button->setCheckable(true);
        m_languages->addButton(button);
        m_languageCard->rows()->addWidget(button);
        const QString code = QLatin1String(language.code);
        connect(button, &QPushButton::clicked, this, [this, code] { Q_EMIT languageChosen(code); });
    }
    setTexts();
}

QStringList UnitPage::languages()
{
    QStringList codes;
    for (const Language &language : LanguageRows) {
        codes << QLatin1String(language.code);
    }
    return codes;
}

void UnitPage::setLanguage(const QString &language)
{
    const int index = languages().indexOf(language);
    if (index >= 0) {
        m_languages->buttons().at(index)->setChecked(true);
    }
}

void UnitPage::setDiskFolder(const QString &path)
{
    if (m_isDiskIn) {
        toggleDisk();
    }
    m_diskFolder = path;
    setTexts();
}

void UnitPage::chooseFolder()
{
    const QString path =
        QFileDialog::getExistingDirectory(window(), tr("Folder behind the disk"), m_diskFolder);
    if (!path.isEmpty()) {
        setDiskFolder(path);
    }
}

void UnitPage::toggleDisk()
{
    m_isDiskIn = !m_isDiskIn;
    setTexts();
    Q_EMIT diskChanged(m_isDiskIn, m_diskFolder);
}

void UnitPage::setTexts()
{
    m_diskCard->setTitle(tr("USB disk"));
    m_diskState->setText(m_diskFolder.isEmpty() ? tr("Choose the folder that is on the disk.")
                         : m_isDiskIn           ? tr("Plugged in: %1").arg(m_diskFolder)
                                                : tr("Pulled out: %1").arg(m_diskFolder));
    m_choose->setText(tr("Folder ..."));
    m_toggle->setText(m_isDiskIn ? tr("Pull out") : tr("Put in"));
    m_toggle->setEnabled(!m_diskFolder.isEmpty());
    m_languageCard->setTitle(tr("Language"));
}

void UnitPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
    }
    QWidget::changeEvent(event);
}
