#include "system/uiscene.h"

#include <QCoreApplication>
#include <QFont>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>

namespace {

bool drawsText(const QQuickItem *item)
{
    return item->inherits("QQuickText") || item->inherits("QQuickTextInput") || item->inherits("QQuickTextEdit");
}

// An item's QML id is known to the context of the file that declares it:
// that may be any context up the chain from the item's own.
bool hasName(QQuickItem *item, const QString &name)
{
    if (item->objectName() == name)
        return true;
    for (QQmlContext *c = qmlContext(item); c; c = c->parentContext()) {
        if (c->nameForObject(item) == name)
            return true;
    }
    return false;
}

} // namespace

UiScene::UiScene(QQuickWindow *window)
    : m_window(window)
{
}

bool UiScene::isIconGlyph(const QQuickItem *item)
{
    const QVariant font = item->property("font");
    return font.isValid() && font.value<QFont>().family().startsWith(QLatin1String("Material Icons"));
}

void UiScene::collect(QQuickItem *item, qreal opacity, const QRectF &clip, bool enabledOnly,
                      QVector<Shown> *out) const
{
    if (!item->isVisible() || (enabledOnly && !item->isEnabled()))
        return;
    opacity *= item->opacity();
    if (opacity < 0.01)
        return;
    const QRectF rect = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
    QRectF childClip = clip;
    if (item->clip())
        childClip = clip.intersected(rect);
    if (!rect.intersected(clip).isEmpty() || (rect.isEmpty() && clip.contains(rect.topLeft())))
        out->append({item, rect.intersected(clip), int(out->size())});
    if (childClip.isEmpty())
        return;
    // Children in paint order: by z, then by declaration.
    QList<QQuickItem *> children = item->childItems();
    std::stable_sort(children.begin(), children.end(),
                     [](const QQuickItem *a, const QQuickItem *b) { return a->z() < b->z(); });
    for (QQuickItem *child : qAsConst(children))
        collect(child, opacity, childClip, enabledOnly, out);
}

QVector<UiScene::Shown> UiScene::shownItems(bool enabledOnly) const
{
    QVector<Shown> out;
    if (m_window && m_window->contentItem())
        collect(m_window->contentItem(), 1.0, QRectF(0, 0, m_window->width(), m_window->height()), enabledOnly, &out);
    return out;
}

QVector<UiScene::ShownText> UiScene::shownTexts() const
{
    QVector<ShownText> texts;
    const QVector<Shown> items = shownItems(false);
    for (const Shown &s : items) {
        if (!drawsText(s.item) || isIconGlyph(s.item) || s.rect.isEmpty())
            continue;
        const QString text = s.item->property("text").toString().trimmed();
        if (!text.isEmpty())
            texts.append({s.item, text, s.rect, s.order});
    }
    std::stable_sort(texts.begin(), texts.end(), [](const ShownText &a, const ShownText &b) {
        const qreal ay = qRound(a.rect.top()), by = qRound(b.rect.top());
        return ay != by ? ay < by : a.rect.left() < b.rect.left();
    });
    return texts;
}

QQuickItem *UiScene::itemWithText(const QString &text) const
{
    const QString wanted = text.trimmed();
    QQuickItem *best = nullptr;
    const QVector<Shown> items = shownItems(true);
    for (const Shown &s : items) {
        if (drawsText(s.item) && !s.rect.isEmpty() && s.item->property("text").toString().trimmed() == wanted)
            best = s.item;
    }
    return best;
}

QQuickItem *UiScene::itemNamed(const QString &name) const
{
    QQuickItem *best = nullptr;
    const QVector<Shown> items = shownItems(true);
    for (const Shown &s : items) {
        if (!s.rect.isEmpty() && hasName(s.item, name))
            best = s.item;
    }
    return best;
}

bool UiScene::showsText(const QString &part) const
{
    const QVector<ShownText> texts = shownTexts();
    return std::any_of(texts.begin(), texts.end(), [&](const ShownText &t) { return t.text.contains(part); });
}

void UiScene::tap(QQuickItem *item) const
{
    const QRectF rect = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()))
                            .intersected(QRectF(0, 0, m_window->width(), m_window->height()));
    const QPointF at = rect.center();
    const QPointF global = m_window->mapToGlobal(at.toPoint());
    QMouseEvent press(QEvent::MouseButtonPress, at, at, global, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, at, at, global, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window, &release);
}

void UiScene::type(const QString &text) const
{
    for (const QChar c : text) {
        const int key = c.isLetterOrNumber() && c.unicode() < 128 ? c.toUpper().unicode()
                        : c == QLatin1Char(' ')                  ? int(Qt::Key_Space)
                                                                 : int(Qt::Key_unknown);
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(c));
        QCoreApplication::sendEvent(m_window, &press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, QString(c));
        QCoreApplication::sendEvent(m_window, &release);
    }
}

bool UiScene::saveShot(const QString &file, QString *error) const
{
    const QImage image = m_window->grabWindow();
    if (image.isNull()) {
        *error = QStringLiteral("the window could not be grabbed");
        return false;
    }
    if (!image.save(file, "PNG")) {
        *error = QStringLiteral("cannot write %1").arg(file);
        return false;
    }
    return true;
}
