#ifndef UNITPAGE_H
#define UNITPAGE_H

#include <QWidget>

class PanelCard;
class QButtonGroup;
class QLabel;
class QPushButton;

/// What a user does to the unit besides its keys: a USB disk, the language.
class UnitPage : public QWidget
{
    Q_OBJECT

public:
    explicit UnitPage(QWidget *parent = nullptr);

    /// Languages that can be chosen, as OrbHost names them.
    static QStringList languages();
    void setLanguage(const QString &language);

    /// The folder that stands for the disk. Empty: none chosen yet.
    void setDiskFolder(const QString &path);
    bool isDiskIn() const { return m_isDiskIn; }

Q_SIGNALS:
    void languageChosen(const QString &language);
    /// The disk with the folder \a path was put in or pulled out.
    void diskChanged(bool isIn, const QString &path);

protected:
    void changeEvent(QEvent *event) override;

private:
    void chooseFolder();
    void toggleDisk();
    void setTexts();

    PanelCard *m_diskCard;
    QLabel *m_diskState;
    QPushButton *m_choose;
    QPushButton *m_toggle;
    PanelCard *m_languageCard;
    QButtonGroup *m_languages;
    QString m_diskFolder;
    bool m_isDiskIn = false;
};

#endif // UNITPAGE_H
