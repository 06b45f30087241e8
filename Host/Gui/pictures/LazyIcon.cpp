#include "pictures/LazyIcon.h"

#include <QApplication>
#include <QIconEngine>
#include <QMap>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <tuple>
#include <utility>

namespace Gui {

namespace {

class LazyIconEngine final : public QIconEngine
{
public:
    explicit LazyIconEngine(std::function<QPixmap(const QSize&)> makePicture) : m_makePicture(std::move(makePicture)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const QSize pixels = rect.size() * painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap(pixels, mode, state));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        const auto key = std::tuple(size.width(), size.height(), mode);
        auto found = m_pictures.find(key);
        if (found == m_pictures.end())
            found = m_pictures.insert(key, make(size, mode));
        return *found;
    }

    QIconEngine* clone() const override { return new LazyIconEngine(*this); }

private:
    QPixmap make(const QSize& size, QIcon::Mode mode) const
    {
        QPixmap picture = m_makePicture(size);
        if (mode == QIcon::Normal)
            return picture;
        QStyleOption option;
        option.palette = QGuiApplication::palette();
        return QApplication::style()->generatedIconPixmap(mode, picture, &option);
    }

    std::function<QPixmap(const QSize&)> m_makePicture;
    QMap<std::tuple<int, int, QIcon::Mode>, QPixmap> m_pictures;
};

} // namespace

QIcon makeLazyIcon(std::function<QPixmap(const QSize&)> makePicture)
{
    return QIcon(new LazyIconEngine(std::move(makePicture)));
}

} // namespace Gui
