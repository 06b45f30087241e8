#pragma once

#include "curves/CurvesContent.h"

#include <QTimer>
#include <QWidget>

#include <functional>

class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QToolButton;

namespace vxInspector {

class ContentView;
class PlotView;

/// The tab of the curves: what is drawn, the plot, and the findings about the curves.
class CurvesPage : public QWidget
{
    Q_OBJECT

public:
    explicit CurvesPage(QWidget* parent = nullptr);
    ~CurvesPage() override;

    /// Shows the curves of materials.
    void setMaterials(const std::vector<DrawnMaterial>& materials, const vxUnits::UnitSystem& system,
                      const QString& limit);
    /// Shows only a sentence.
    void setSentence(const QString& sentence);
    void retranslate();
    PlotView& plot() const { return *m_plot; }
    ContentView& findings() const { return *m_findings; }

Q_SIGNALS:
    /// Sent when the user has chosen something else to draw.
    void chosen();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOut();
    void elideModes();
    void connectControls();
    void showContent(CurvesContent content);
    void showModes();
    void fillModeMenu();
    void addMode(vxConstitutive::Mode mode);
    void addCompressibility();
    void addChains();
    void addSwitch(const QString& text, bool isOn, const std::function<void(bool)>& change);
    void fillParameter(const CurvesContent& content);
    void readParameterField();
    void fillOrdinates(const CurvesContent& content);
    void fillRange(const CurvesContent& content);
    void fillScales(const CurvesContent& content);
    void chooseMode(vxConstitutive::Mode mode, bool isOn);
    void readRange();
    void showReadability(QLineEdit& field, bool isReadable) const;
    std::optional<double> readBound(QLineEdit& field) const;
    void showControls(bool isShown);

    CurveSettings m_settings;
    CurveCache m_cache;
    std::vector<vxConstitutive::Mode> m_available; ///< that the materials have
    std::vector<vxConstitutive::Mode> m_shown;
    bool m_canBeIncompressible = false;
    bool m_hasChains = false;
    CurveParameter m_parameter = CurveParameter::None;
    vxUnits::UnitSystem m_system = vxUnits::UnitSystem::si();
    std::vector<vxConstitutive::Mode> m_ordinatesOf; ///< the modes whose ordinates are in the choice
    std::string m_rangeUnit;
    QString m_modeNames;
    QLabel* m_sentence;
    QWidget* m_controls;
    QToolButton* m_modes;
    QMenu* m_modeMenu;
    QComboBox* m_ordinates;
    QLabel* m_fromLabel;
    QLineEdit* m_from;
    QLabel* m_toLabel;
    QLineEdit* m_to;
    QLabel* m_parameterLabel;
    QLineEdit* m_parameterField;
    QToolButton* m_horizontal;
    QToolButton* m_vertical;
    PlotView* m_plot;
    QWidget* m_buttons;
    QToolButton* m_reset;
    QToolButton* m_copy;
    QToolButton* m_save;
    ContentView* m_findings;
    QTimer m_findingsChange; ///< runs while rows of the findings change their heights
};

} // namespace vxInspector
