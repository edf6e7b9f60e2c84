// Bad text: an empty reply, nothing changed, and no time lost.
#include <random>

#include <gtest/gtest.h>

#include "tests/engine/engine_case.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

QString WholeState(ReferenceEngine& engine) { return engine.Doit(u"? Status"_s); }

class BadText : public testing::TestWithParam<std::pair<const char*, QString>> {};

TEST_P(BadText, RepliesNothingAndChangesNothing) {
  ReferenceEngine engine;
  engine.LoadStartingState();
  const QString before = WholeState(engine);
  EXPECT_EQ(engine.Doit(GetParam().second), u""_s);
  EXPECT_EQ(WholeState(engine), before);
}

constexpr qsizetype kTenMegabytes = 10'000'000;

// clang-format off
const std::pair<const char*, QString> kBadTexts[]{
  {"Empty",              u""_s},
  {"Blank",              u" \r\n\t ; ;"_s},
  {"OpenQuote",          u"Solar.Sun = \"FALSE"_s},
  {"OpenQuoteLater",     u"Solar.Sun = FALSE; x = \"a; ? Solar.Sun"_s},
  {"QuoteFirst",         u"\"Solar.Sun\" = FALSE"_s},
  {"LongPath",           QString(kTenMegabytes, u'a') + u" = 1"},
  {"LongQuery",          u"? "_s + QString(kTenMegabytes, u'a')},
  {"LongValue",          u"Solar.Sun = "_s + QString(kTenMegabytes, u'x')},
  {"LongQuotedValue",    u"Solar.Sun = \""_s + QString(kTenMegabytes, u';') + u'"'},
  {"ManySemicolons",     QString(kTenMegabytes, u';')},
  {"ManyParentheses",    QString(kTenMegabytes, u'(')},
  {"ManyDots",           QString(kTenMegabytes, u'.') + u" = 1"},
  {"DeepPath",           QString(u"a."_s).repeated(500) + u"a = 1"},
  {"ControlInPath",      u"Solar.\x01Sun = FALSE"_s},
  {"ControlInValue",     u"Solar.Sun.Name.Color = a\x07" u"b"_s},
  {"NullCharacter",      QString(u"Solar.Sun = FALSE"_s).append(QChar(0)).append(u"x")},
  {"UnknownMethod",      u"Solar.Sun.Explode()"_s},
  {"NoMethodName",       u"Solar.Sun.(1)"_s},
  {"NothingButACall",    u"(1)"_s},
  {"MemberZero",         u"solar.sun.corona.#0.title = a; ? solar.sun.corona.#0.title"_s},
  {"MemberNegative",     u"solar.sun.corona.#-1.title = a; ? solar.sun.corona.#-1.title"_s},
  {"MemberTooLarge",     u"solar.sun.corona.#99999999999.title = a; ? solar.sun.corona.#99999999999.title"_s},
  {"ObjectZero",         u"Solar.Comet.No0.Orbit = TRUE; ? Solar.Comet.No0.Orbit"_s},
  {"ObjectTooLarge",     u"Solar.Comet.No99999999999.Orbit = TRUE"_s},
  {"NoMember",           u"solar.sun.corona.#.title = a"_s},
  {"SlotZero",           u"Init Status.#0; Make Status.#0; ? Status.#0.Object"_s},
  {"SlotNegative",       u"Init Status.#-1; Make Status.#-1; ? Status.#-1.Object"_s},
  {"SlotTooLarge",       u"Init Status.#99999999999; Make Status.#99999999999; ? Status.#99999999999.Object"_s},
  {"SlotWithoutNumber",  u"Init Status; Make Status.5; Make"_s},
  {"EmptyWords",         u"Solar..Sun = FALSE; .Solar = 1; Solar. = 1; . = 1"_s},
  {"BlankInPath",        u"Solar Sun = FALSE; Show Moon; Show"_s},
  {"NoPath",             u"= 5; ? ; ?; ??"_s},
  {"NoTime",             u"time = yesterday; time = jst(); time = jst(1,2,3,4,5,nan); time.jd = inf"_s},
  {"NoLocation",         u"location = location(a, b, c)"_s},
  {"DeleteFromNothing",  u"solar.sun.corona.Delete(-1); solar.sun.corona.Delete(99999999999)"_s},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Engine, BadText, testing::ValuesIn(kBadTexts),
                         [](const auto& info) { return std::string(info.param.first); });

/// A statement a line, so that a difference shows as one.
std::string Lines(QString state) { return state.replace(u';', u";\n"_s).toStdString(); }

template <typename List>
auto& AnyOf(const List& list, std::mt19937& random) {
  return list[random() % static_cast<std::size_t>(list.size())];
}

QString RandomPath(std::mt19937& random) {
  static const QStringList kRoots{u"Solar.Comet"_s,
                                  u"Solar.Planet"_s,
                                  u"Solar.Moon"_s,
                                  u"Solar.Planet.Mars"_s,
                                  u"Solar.Planet.Earth.Satellite"_s,
                                  u"Time"_s,
                                  u"a"_s,
                                  u"Location"_s,
                                  u"Solar.Comet.*"_s};
  static const QStringList kWords{u".No1"_s,       u".No2"_s,    u".#1"_s, u".Visible"_s,
                                  u".Orbit"_s,     u".Status"_s, u".ID"_s, u".Members"_s,
                                  u".Satellite"_s, u".Year"_s,   u".JD"_s, u".Count"_s,
                                  u".Date"_s,      u".Label"_s};
  QString path = AnyOf(kRoots, random);
  for (int i = static_cast<int>(random() % 3); i > 0; --i) path += AnyOf(kWords, random);
  return path;
}

QString WellFormed(std::mt19937& random) {
  static const QStringList kEndings{u" = TRUE"_s,
                                    u" = 2450000.5"_s,
                                    u" = \"a;b\""_s,
                                    u" = "_s,
                                    u".Init()"_s,
                                    u".Add()"_s,
                                    u".Delete(1)"_s,
                                    u".Forget()"_s,
                                    u".Set(\"x)\")"_s,
                                    u" = jst(2000, 1, 1, 0, 0, 0)"_s,
                                    u" = location(1, 2, 3)"_s};
  return RandomPath(random) + AnyOf(kEndings, random);
}

/// Pieces of the language in any order.
QString Broken(std::mt19937& random) {
  static const QStringList kPieces{u"? "_s, u" = "_s,   u";"_s,    u"("_s,    u")"_s,
                                   u"\""_s, u".#0"_s,   u", "_s,   u"jst("_s, u"\n"_s,
                                   u"月"_s, u"Make "_s, u".Set("_s};
  QString text;
  for (int i = static_cast<int>(random() % 12); i >= 0; --i) {
    text += random() % 2 == 0 ? AnyOf(kPieces, random) : RandomPath(random);
  }
  return text;
}

QString RandomCommand(std::mt19937& random) {
  return random() % 3 == 0 ? Broken(random) : WellFormed(random);
}

TEST(BadTextFuzz, WhateverWasSentTheStateCanBeWrittenAndBroughtBack) {
  std::mt19937 random(20260101);
  ReferenceEngine engine;
  engine.SetProperty(u"Solar.Comet.No1.Date"_s, u"TRUE"_s);
  for (int round = 0; round < 60; ++round) {
    engine.Doit(u"Init Status.#7; Make Status.#7"_s);
    const QString before = WholeState(engine);
    for (int i = 0; i < 200; ++i) engine.Doit(RandomCommand(random));
    engine.Doit(engine.Doit(u"? Status.#7.Object"_s));
    ASSERT_EQ(Lines(WholeState(engine)), Lines(before)) << "round " << round;
    for (int i = 0; i < 20; ++i) engine.Doit(RandomCommand(random));
  }
}

}  // namespace
}  // namespace vyn
