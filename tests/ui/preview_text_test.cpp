#include "support/becomes.h"
#include "ui/preview/preview_text_edit.h"
#include "ui/preview/text_pieces.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>
#include <QTest>

namespace {

struct Shown {
    QString text;
    TextPieces pieces;
};

Shown shown(const QString& text, qsizetype pieces, qsizetype units)
{
    Shown result{{}, TextPieces(text)};
    while (!result.pieces.is_complete())
        result.text += result.pieces.next(pieces, units);
    return result;
}

/// What is shown at each place, put together from the text.
QString copied_unit_by_unit(const Shown& shown)
{
    QString copied;
    for (qsizetype place = 0; place < shown.text.size(); ++place) {
        const TextPieces::Part part = shown.pieces.shown_part(place, place + 1);
        const QString unit = shown.pieces.text().mid(part.offset, part.length);
        if (shown.text[place] != u'\n' && shown.text[place] != QChar::ReplacementCharacter) {
            EXPECT_EQ(unit, shown.text[place]) << place;
        }
        copied += unit;
    }
    return copied;
}

const QString pair = QString::fromUcs4(U"\U0001F600", 1);

/// The longest line that is never folded where it comes first.
constexpr qsizetype whole = TextPieces::fold + TextPieces::room;

/// A surrogate pair at each place of a line, so that every cut falls into one.
QString pairs(int count, bool shifted)
{
    return (shifted ? "x" : "") + pair.repeated(count);
}

const QString odd_units = QString(u"a\0b\u2028c\u2029d\u00a0e\ufdd0f\ufdd1g\rh\u200bi\ufffcj"_qs) + QChar(0xd800);

const std::vector<QString> texts{
    "",
    "one",
    "\n",
    "a\nb\n",
    "a\r\nb\r\n\r\n",
    "a\rb\n\rc",
    odd_units,
    QString(whole, u'x') + "\r\n" + QString(TextPieces::fold + 1, u'y') + "\n",
    QString(whole + 1, u'z'),
    pairs(20'000, false),
    pairs(20'000, true),
    QString(600, u'x') + QString(600, u'\u0e44') + "\n" + QString(30'000, u'x') + QString(600, u'\u0e44'),
};

PreviewTextEdit& edit_with(const QString& text)
{
    static PreviewTextEdit edit;
    edit.resize(400, 300);
    edit.show_text(text);
    return edit;
}

QString copied(PreviewTextEdit& edit)
{
    edit.copy();
    return QGuiApplication::clipboard()->text();
}

QString lines(int count)
{
    QString text;
    for (int i = 0; i < count; ++i)
        text += QString::number(i) + "\r\n";
    return text;
}

bool fills(const PreviewTextEdit& edit)
{
    return becomes([&] { return !edit.is_filling(); });
}

}

TEST(TextPieces, EveryPlaceLeadsBackIntoTheText)
{
    for (const QString& text : texts)
        for (const auto& [pieces, units] : {std::pair<int, int>{1, 1}, {3, 2000}, {1'000'000, 1'000'000}}) {
            const Shown all = shown(text, pieces, units);
            EXPECT_EQ(copied_unit_by_unit(all), text);
            EXPECT_EQ(all.pieces.shown_part(0, all.text.size()), (TextPieces::Part{0, text.size()}));
            for (const QString& piece : all.text.split(u'\n'))
                EXPECT_FALSE(piece.startsWith(pair.back()) || piece.endsWith(pair.front()));
        }
}

TEST(TextPieces, FoldsOnlyWhatTakesTooLongToPaint)
{
    struct Case {
        int lines, units, expected;
        char16_t unit = u'x';
    };

    constexpr int fold{TextPieces::fold}, slow_fold{TextPieces::slow_fold};
    constexpr int slow_whole = slow_fold + TextPieces::room / TextPieces::slow_cost;
    constexpr char16_t thai = u'\u0e44';
    const auto folded = [](int length, int piece) { return (length - 1) / piece + 1; };
    const std::vector<Case> cases{
        {1, 5'000, 1},
        {1, int{whole}, 1},
        {1, int{whole} + 1, folded(whole + 1, fold)},
        {10'000, 500, 10'000},
        {15, 2'000, 15},
        {200, 2'000, 16 + 184 * folded(2'000, fold)},
        {1, 500'000, folded(500'000, fold)},
        {1, slow_whole, 1, thai},
        {1, slow_whole + 1, folded(slow_whole + 1, slow_fold), thai},
        {10'000, 250, 10'000, thai},
        {200, 1'280, 6 + 194 * folded(1'280, slow_fold), thai},
        {10'000, 500, 10'000, u'\u2026'},
    };
    for (const auto& [lines, units, expected, unit] : cases) {
        const Shown all = shown((QString(units, unit) + u'\n').repeated(lines), 1'000, 100'000);
        const QStringList paragraphs = all.text.split(u'\n');
        EXPECT_EQ(paragraphs.size() - 1, expected) << lines << " of " << units;
        qsizetype place = 0, folds = 0;
        for (const QString& paragraph : paragraphs) {
            folds += all.pieces.continues_line(place) ? 1 : 0;
            place += paragraph.size() + 1;
        }
        EXPECT_EQ(folds, expected - lines);
    }
}

TEST(TextPieces, TakesNoMoreThanItIsAsked)
{
    constexpr qsizetype fold = TextPieces::fold;
    TextPieces pieces(QString(1'000 * fold, u'x'));
    EXPECT_EQ(pieces.next(2, 1'000'000).count(u'\n'), 2);
    EXPECT_EQ(pieces.next(100, fold + 10).count(u'\n'), 2);
    EXPECT_EQ(pieces.shown_part(0, 4 * fold + 4).length, 1'000 * fold) << "what comes joins it";
    EXPECT_EQ(pieces.shown_part(5, 2 * fold + 2).length, 2 * fold - 5);
}

TEST(PreviewTextEdit, CopiesTheTextAsItIs)
{
    for (const QString& text : texts) {
        PreviewTextEdit& edit = edit_with(text);
        EXPECT_TRUE(fills(edit));
        QGuiApplication::clipboard()->clear();
        edit.selectAll();
        EXPECT_EQ(copied(edit), text);
    }
}

TEST(PreviewTextEdit, MarksFoldsInTheMargin)
{
    PreviewTextEdit& edit = edit_with(QString(whole + 1, u'x'));
    EXPECT_TRUE(fills(edit));
    const auto bars = [&](int block) {
        edit.verticalScrollBar()->setValue(block);
        const QImage image = edit.viewport()->grab().toImage();
        const QRgb bar = edit.palette().color(QPalette::Highlight).rgb();
        const int line = edit.fontMetrics().lineSpacing();
        return std::pair(image.pixel(1, line / 2) == bar, image.pixel(1, 2 * line) == bar);
    };
    EXPECT_EQ(bars(0), std::pair(false, true));
    EXPECT_EQ(bars(1), std::pair(true, true));
}

TEST(PreviewTextEdit, ShowsAndSelectsWhileTheRestComes)
{
    const QString text = lines(100'000);
    PreviewTextEdit& edit = edit_with(text);
    EXPECT_TRUE(edit.is_filling());
    EXPECT_TRUE(edit.toPlainText().startsWith("0\n1\n2\n"));
    EXPECT_EQ(edit.textCursor().position(), 0);
    edit.selectAll();
    EXPECT_EQ(copied(edit), text);
    QTest::qWait(5);
    EXPECT_EQ(copied(edit), text);
    EXPECT_TRUE(fills(edit));
    EXPECT_EQ(copied(edit), text);
    EXPECT_EQ(edit.blockCount(), 100'001);
    QTextCursor part(edit.document());
    part.setPosition(2);
    part.setPosition(5, QTextCursor::KeepAnchor);
    edit.setTextCursor(part);
    EXPECT_EQ(copied(edit), "1\r\n2");
}

TEST(PreviewTextEdit, ANewTextDropsTheRestOfTheOld)
{
    edit_with(lines(100'000));
    PreviewTextEdit& edit = edit_with("new");
    EXPECT_FALSE(edit.is_filling());
    QTest::qWait(20);
    EXPECT_EQ(edit.toPlainText(), "new");
    edit_with(lines(100'000));
    edit_with(lines(10'000));
    EXPECT_TRUE(fills(edit));
    EXPECT_EQ(edit.blockCount(), 10'001);
}
