#pragma once

#include "Gui/PreferencesPage.h"

#include <QString>

class QLabel;

namespace desktop {

class UnitChoice;

/// The page of the preferences about units: the unit system of projects that have none of their own.
class UnitsPage : public Gui::PreferencesPage
{
    Q_OBJECT

public:
    explicit UnitsPage(QWidget* parent = nullptr);
    ~UnitsPage() override;

    bool isChanged() const override;
    bool isValid() const override;
    void store() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    QLabel* m_title;
    QLabel* m_remark;
    UnitChoice* m_choice;
    QString m_stored; ///< the text of the stored system
};

} // namespace desktop
