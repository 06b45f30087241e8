#include "DependencyQuestion.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMessageBox>

namespace MatGui {

namespace {

/// A message box treats Escape and its close button like its only button, which would delete the objects here.
class Question final : public QMessageBox
{
public:
    using QMessageBox::QMessageBox;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->matches(QKeySequence::Cancel))
            reject();
        else
            QMessageBox::keyPressEvent(event);
    }

    void closeEvent(QCloseEvent* event) override
    {
        event->accept();
        reject();
    }
};

} // namespace

bool askAboutDependencies(QWidget* parent)
{
    Question question(QMessageBox::Question, QCoreApplication::translate("Mat_Delete", "Object dependencies"),
                      QCoreApplication::translate("Mat_Delete", "This object is linked to other objects thus these "
                                                                "objects might be broken.\nDo you want to continue?"),
                      QMessageBox::Yes, parent);
    // The default button is No, which is not visible, so that no button is marked as the default. Return still means
    // Yes: a dialog sends it to the button that has the keyboard focus.
    question.setDefaultButton(QMessageBox::No);
    return question.exec() == QMessageBox::Yes;
}

} // namespace MatGui
