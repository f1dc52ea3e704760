#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>
#include <QVector>

class QQuickItem;
class QQuickWindow;

// What a finger and an eye get of the window: the texts on show, the items
// behind them, a press and release at a point, key presses into the focused
// field, a picture of the window. Host tools only (the UI driver).
class UiScene
{
public:
    struct ShownText {
        QQuickItem *item = nullptr;
        QString text;  // trimmed
        QRectF rect;   // in window coordinates
        int order = 0; // paint order: higher is drawn later (on top)
    };

    explicit UiScene(QQuickWindow *window);

    // Every visible text, top to bottom then left to right. Glyphs of the
    // icon font are not texts.
    QVector<ShownText> shownTexts() const;
    // The topmost visible, enabled item whose shown text is `text` (trimmed), or null.
    QQuickItem *itemWithText(const QString &text) const;
    // The topmost visible, enabled item with this QML id or objectName, or null.
    QQuickItem *itemNamed(const QString &name) const;
    // Whether a visible text contains `part`.
    bool showsText(const QString &part) const;

    // A press and release at the centre of the item, delivered to the window
    // as the touch screen's mouse events are.
    void tap(QQuickItem *item) const;
    // Key presses into the focused field.
    void type(const QString &text) const;
    bool saveShot(const QString &file, QString *error) const;

    static bool isIconGlyph(const QQuickItem *item);

private:
    struct Shown {
        QQuickItem *item;
        QRectF rect;
        int order;
    };
    // Visible items in paint order, with their window rectangles.
    QVector<Shown> shownItems(bool enabledOnly) const;
    void collect(QQuickItem *item, qreal opacity, const QRectF &clip, bool enabledOnly, QVector<Shown> *out) const;

    QQuickWindow *m_window;
};
