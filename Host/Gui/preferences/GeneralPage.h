#pragma once

#include "Gui/PreferencesPage.h"

class QComboBox;
class QLabel;

namespace Gui {

/// The preferences that do not belong to a module: the language.
class GeneralPage : public PreferencesPage
{
    Q_OBJECT

public:
    explicit GeneralPage(QWidget* parent = nullptr);
    ~GeneralPage() override;

    bool isChanged() const override;
    void store() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void showRemark();

    QLabel* m_title;
    QLabel* m_remark;
    QComboBox* m_languages;
    int m_stored = -1; ///< the index of the stored language; -1 if there is no such language
};

} // namespace Gui
