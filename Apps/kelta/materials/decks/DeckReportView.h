#pragma once

#include "vxInspector/decks/DeckLines.h"

#include <QTableView>

#include <vector>

namespace desktop {

class DeckReportModel;

/// Shows the report of a deck. Long texts wrap, and the columns share the width.
class DeckReportView : public QTableView
{
    Q_OBJECT

public:
    explicit DeckReportView(QWidget* parent = nullptr);
    ~DeckReportView() override;

    void setLines(std::vector<vxInspector::DeckLine> lines);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fitRows();

    DeckReportModel* m_lines;
};

} // namespace desktop
