#include "preferences/GeneralPage.h"

#include "Gui/Translator.h"
#include "Gui/WindowTitle.h"
#include "application/LanguageChoice.h"

#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>

namespace Gui {

namespace {

/// The texts of the program itself are shown in the locale C too.
QLocale::Language languageOf(const QString& name)
{
    const QLocale::Language language = QLocale(name).language();
    return language == QLocale::C ? QLocale::English : language;
}

} // namespace

GeneralPage::GeneralPage(QWidget* parent)
    : PreferencesPage(parent), m_title(new QLabel(this)), m_remark(new QLabel(this)), m_languages(new QComboBox(this))
{
    m_languages->setObjectName(QStringLiteral("language"));
    for (const LanguageChoice& choice : languageChoices())
        m_languages->addItem(withoutMnemonics(choice.title), choice.language);
    m_stored = m_languages->findData(Translator::chosenLanguage());
    m_languages->setCurrentIndex(m_stored);
    auto* const layout = new QFormLayout(this);
    layout->addRow(m_title, m_languages);
    layout->addRow(QString(), m_remark);
    m_remark->setObjectName(QStringLiteral("languageRemark"));
    m_remark->setTextFormat(Qt::PlainText);
    m_remark->setWordWrap(true);
    m_title->setBuddy(m_languages);
    setFocusProxy(m_languages);
    retranslate();
    connect(m_languages, qOverload<int>(&QComboBox::currentIndexChanged), this, &GeneralPage::edited);
}

GeneralPage::~GeneralPage() = default;

bool GeneralPage::isChanged() const
{
    return m_languages->currentIndex() != m_stored;
}

void GeneralPage::store()
{
    m_stored = m_languages->currentIndex();
    Translator::instance()->chooseLanguage(m_languages->currentData().toString());
    showRemark();
}

void GeneralPage::retranslate()
{
    m_title->setText(tr("&Language:"));
    showRemark();
    // Only the title of the system's language is translated.
    m_languages->setItemText(0, withoutMnemonics(languageChoices().front().title));
}

/// The language of the start is not stored.
void GeneralPage::showRemark()
{
    const QString chosen = Translator::chosenLanguage();
    const QString& used = Translator::instance()->language();
    const bool isOther = languageOf(used) != languageOf(chosen.isEmpty() ? QLocale::system().name() : chosen);
    m_remark->setVisible(isOther);
    m_remark->setText(isOther ? tr("Now in use: %1, the language given at the start.").arg(Translator::nameOf(used))
                              : QString());
}

void GeneralPage::changeEvent(QEvent* event)
{
    PreferencesPage::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

} // namespace Gui
