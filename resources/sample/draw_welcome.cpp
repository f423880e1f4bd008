// Draws welcome.pdf, the sample document: a page that shows what the color settings do, and one
// that shows what print quality, alignment and mirror printing do.
//
// Usage: draw_welcome PHOTOGRAPH OUTPUT. Not part of a build; the finished document is kept.

#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QLinearGradient>
#include <QtGui/QPageLayout>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPdfWriter>

using namespace Qt::StringLiterals;

namespace {

// The pages are laid out in points on A4, 595 by 842, and drawn at 10 units a point.
constexpr int UNITS_PER_POINT = 10;
constexpr double LEFT = 48;
constexpr double WIDTH = 499;

const QColor INK(38, 43, 50);
const QColor QUIET(112, 120, 130);
const QColor ACCENT(0, 112, 184);

QFont font(double points, QFont::Weight weight = QFont::Normal)
{
    QFont result(QStringList{u"DejaVu Sans"_s, u"Noto Sans CJK JP"_s});
    result.setPointSizeF(points);
    result.setWeight(weight);
    return result;
}

// Set in the device's own units, since letters are placed in whole units.
void text(QPainter &painter, const QRectF &box, const QString &words, const QFont &face,
          const QColor &color = INK, int flags = Qt::AlignLeft | Qt::TextWordWrap)
{
    painter.save();
    painter.scale(1.0 / UNITS_PER_POINT, 1.0 / UNITS_PER_POINT);
    painter.setFont(face);
    painter.setPen(color);
    painter.drawText(QRectF(box.topLeft() * UNITS_PER_POINT, box.size() * UNITS_PER_POINT), flags,
                     words);
    painter.restore();
}

void heading(QPainter &painter, double y, const QString &words)
{
    text(painter, {LEFT, y, WIDTH, 18}, words, font(10.5, QFont::Bold));
    painter.setPen(QPen(QUIET, 0.4));
    painter.drawLine(QPointF(LEFT, y + 18), QPointF(LEFT + WIDTH, y + 18));
}

void footer(QPainter &painter, const QString &page)
{
    text(painter, {LEFT, 800, WIDTH, 14}, u"Velkaro Print sample document"_s, font(7.5), QUIET);
    text(painter, {LEFT, 800, WIDTH, 14}, page, font(7.5), QUIET, Qt::AlignRight);
}

void title(QPainter &painter, const QString &words, const QString &below)
{
    painter.fillRect(QRectF(0, 0, 595, 6), ACCENT);
    text(painter, {LEFT, 40, WIDTH, 40}, words, font(25, QFont::Bold));
    text(painter, {LEFT, 80, WIDTH, 34}, below, font(10), QUIET);
}

// Seven bars that run from white over the full color to black.
void colorBars(QPainter &painter, double top)
{
    const QList<QColor> colors{Qt::cyan,   Qt::blue,  Qt::magenta,          Qt::red,
                               Qt::yellow, Qt::green, QColor(128, 128, 128)};
    double y = top;
    for (const QColor &color : colors) {
        QLinearGradient gradient(LEFT, 0, LEFT + WIDTH, 0);
        gradient.setColorAt(0, Qt::white);
        gradient.setColorAt(0.5, color);
        gradient.setColorAt(1, Qt::black);
        painter.fillRect(QRectF(LEFT, y, WIDTH, 13), gradient);
        y += 15;
    }
}

// Skin tones from light to dark, in linear steps of each channel.
void skinTones(QPainter &painter, double top)
{
    const QList<QColor> tones{{255, 224, 196}, {241, 194, 160}, {224, 172, 130}, {198, 134, 94},
                              {160, 100, 66},  {120, 72, 46},   {84, 50, 34},    {56, 34, 26}};
    const double width = WIDTH / static_cast<double>(tones.size());
    double x = LEFT;
    for (const QColor &tone : tones) {
        painter.fillRect(QRectF(x, top, width, 30), tone);
        x += width;
    }
}

void greySteps(QPainter &painter, double top)
{
    constexpr int STEPS = 21;
    for (int i = 0; i < STEPS; ++i) {
        const int level = 255 - i * 255 / (STEPS - 1);
        const QRectF step(LEFT + WIDTH * i / STEPS, top, WIDTH / STEPS, 30);
        painter.fillRect(step, QColor(level, level, level));
        text(painter, step, QString::number(i * 5), font(6), level < 128 ? Qt::white : INK,
             Qt::AlignCenter);
    }
    painter.setPen(QPen(QUIET, 0.4));
    painter.drawRect(QRectF(LEFT, top, WIDTH, 30));
}

void colorPage(QPainter &painter, const QImage &photograph)
{
    title(painter, u"Welcome to Velkaro Print"_s,
          u"Print this page twice, once with Natural and once with Vivid color matching, and hold "
          u"the "
          "two beside each other: skin, leaves, fruit and the gray cards tell the difference."_s);
    const double height = WIDTH * photograph.height() / photograph.width();
    painter.drawImage(QRectF(LEFT, 128, WIDTH, height), photograph);
    const double y = 128 + height + 14;
    heading(painter, y, u"Skin tones"_s);
    skinTones(painter, y + 25);
    heading(painter, y + 66, u"Gray, in steps of 5 %"_s);
    greySteps(painter, y + 91);
    heading(painter, y + 132, u"From white over color to black"_s);
    painter.save();
    painter.translate(0, y + 157);
    painter.scale(1, 0.62);
    colorBars(painter, 0);
    painter.restore();
    footer(painter, u"1 / 2"_s);
}

void textSizes(QPainter &painter, double top)
{
    const QString words = u"The quick brown fox jumps over the lazy dog. 0123456789"_s;
    double y = top;
    for (double size : {4.0, 5.0, 6.0, 8.0, 10.0, 12.0}) {
        text(painter, {LEFT, y, 30, size * 1.8}, QString::number(size), font(6), QUIET);
        text(painter, {LEFT + 24, y, WIDTH - 24, size * 1.8}, words, font(size));
        y += size * 1.7 + 2;
    }
    text(painter, {LEFT + 24, y, WIDTH - 24, 20},
         u"\u5370\u5237\u54c1\u8cea\u306e\u78ba\u8a8d\uff1a\u3044\u308d\u306f\u306b\u307b\u3078"
         u"\u3068"
         "\u3000\u6c38\u9060\u3000\u9b31\u3000\u9a5a"_s,
         font(11));
    painter.fillRect(QRectF(LEFT + 24, y + 24, WIDTH - 24, 22), INK);
    text(painter, {LEFT + 30, y + 28, WIDTH - 30, 18}, words, font(8), Qt::white);
}

// Fans of hair lines from two corners, and vertical lines of growing width: where a head that
// prints in both directions is out of line, the verticals fray.
void lines(QPainter &painter, double top)
{
    const QRectF box(LEFT, top, WIDTH / 2 - 10, 130);
    painter.setPen(QPen(INK, 0.25));
    painter.drawRect(box);
    for (int i = 0; i <= 30; ++i) {
        painter.drawLine(box.bottomLeft(), QPointF(box.left() + box.width() * i / 30, box.top()));
        painter.drawLine(box.bottomRight(), QPointF(box.right() - box.width() * i / 30, box.top()));
    }
    const double left = LEFT + WIDTH / 2 + 10;
    for (int i = 0; i < 16; ++i) {
        painter.setPen(QPen(INK, 0.2 + 0.12 * i, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(QPointF(left + 15 * i, top), QPointF(left + 15 * i, top + 130));
    }
}

// A frame near the edges, with the way up: shows what is cut off, turned or mirrored.
void edges(QPainter &painter)
{
    painter.setPen(QPen(ACCENT, 0.5, Qt::DashLine));
    painter.drawRect(QRectF(14, 14, 567, 814));
    text(painter, {LEFT, 670, WIDTH, 34}, u"TOP \u2191   LEFT \u2190   R"_s, font(20, QFont::Bold),
         ACCENT);
    text(painter, {LEFT, 706, WIDTH, 40},
         u"The dashed frame is 5 mm from the edges of A4. A mirrored page shows these letters the "
         u"wrong "
         "way round; a page turned by 180 degrees has them upside down."_s,
         font(9), QUIET);
}

void finePage(QPainter &painter)
{
    title(
        painter, u"Letters, lines and edges"_s,
        u"Small letters and thin lines show the print quality, upright lines the alignment of the "
        "head. Try Draft and Best, with bi-directional printing on and off."_s);
    heading(painter, 126, u"Letters from 4 to 12 points"_s);
    textSizes(painter, 154);
    heading(painter, 330, u"Hair lines, and upright lines of 0.2 to 2 points"_s);
    lines(painter, 358);
    heading(painter, 508, u"Color on color"_s);
    const QList<QColor> colors{Qt::cyan, Qt::magenta, Qt::yellow, Qt::red, Qt::green, Qt::blue};
    const double width = WIDTH / static_cast<double>(colors.size());
    for (qsizetype i = 0; i < colors.size(); ++i) {
        const QRectF field(LEFT + width * static_cast<double>(i), 534, width - 6, 70);
        painter.fillRect(field, colors[i]);
        text(painter, field.adjusted(0, 8, 0, -8), u"Fine print"_s, font(9, QFont::Bold), Qt::white,
             Qt::AlignHCenter | Qt::AlignTop);
        text(painter, field.adjusted(0, 8, 0, -8), u"Fine print"_s, font(9, QFont::Bold), INK,
             Qt::AlignHCenter | Qt::AlignBottom);
    }
    heading(painter, 640, u"Which way up"_s);
    edges(painter);
    footer(painter, u"2 / 2"_s);
}

} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3)
        qFatal("usage: draw_welcome PHOTOGRAPH OUTPUT");
    const QImage photograph(arguments[1]);
    if (photograph.isNull())
        qFatal("the photograph cannot be read");
    QPdfWriter writer(arguments[2]);
    writer.setTitle(u"Velkaro Print sample document"_s);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins({});
    writer.setResolution(72 * UNITS_PER_POINT);
    QPainter painter(&writer);
    painter.scale(UNITS_PER_POINT, UNITS_PER_POINT);
    painter.setRenderHint(QPainter::Antialiasing);
    colorPage(painter, photograph);
    writer.newPage();
    finePage(painter);
    return painter.end() ? 0 : 1;
}
