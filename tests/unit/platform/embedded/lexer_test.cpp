#include "platform/embedded/lexer/lexer.h"

#include <gtest/gtest.h>

#include "test_database.h"

namespace ovindra::embedded {
namespace {

/// Tokens as "kind:text", parted by blanks.
std::string Tokens(std::string_view statement) {
  constexpr const char* kKinds[] = {"word", "name", "int", "dec", "float", "text", "sym", "end"};
  std::string result;
  for (const Token& token : Lex(statement)) {
    if (token.kind == TokenKind::kEnd) break;
    result += (result.empty() ? "" : " ") + std::string(kKinds[static_cast<int>(token.kind)]) + ":" +
              Unquoted(token);
  }
  return result;
}

struct Case {
  const char* statement;
  const char* tokens;
};

TEST(Lexer, PartsWordsAsTheServerDoes) {
  const Case kCases[] = {
      {"Sankul_ID =5And a.x", "word:Sankul_ID sym:= int:5 word:And word:a sym:. word:x"},
      {"between'05/01/2016'and'05/31/2016'and",
       "word:between text:05/01/2016 word:and text:05/31/2016 word:and"},
      {"a<>b<=c!=1", "word:a sym:<> word:b sym:<= word:c sym:!= int:1"},
      {"1.5 .5 5. 1e5 2.5E-3 1else", "dec:1.5 dec:.5 dec:5. float:1e5 float:2.5E-3 int:1 word:else"},
      {R"([Group By] "x""y" [a]]b])", "name:Group By name:x\"y name:a]b"},
      {"'it''s' N'x' ''", "text:it's text:x text:"},
      {"select--rest of line\n1/*a/*b*/c*/+2", "word:select int:1 sym:+ int:2"},
      {"'--' '/*'", "text:-- text:/*"},
      {"@n #t name1$", "word:@n word:#t word:name1$"},
      {"'\xC3\x84' \xC3\x84rger", "text:\xC3\x84 word:\xC3\x84rger"},
      {"\t\r\n ", ""},
  };
  for (const Case& each : kCases) EXPECT_EQ(Tokens(each.statement), each.tokens) << each.statement;
}

TEST(Lexer, RefusesWhatBeginsNoToken) {
  const Case kCases[] = {
      {"select 'abc", "-2147217900 Unclosed quotation mark after the character string 'abc'."},
      {"select [abc", "-2147217900 Unclosed quotation mark after the character string 'abc'."},
      {"select 'it''s", "-2147217900 Unclosed quotation mark after the character string 'it''s'."},
      {"select /* x /* y */", "-2147217900 Missing end comment mark '*/'."},
      {"select !a", "-2147217900 Incorrect syntax near '!'."},
      {"select {a", "-2147217900 Incorrect syntax near '{'."},
  };
  for (const Case& each : kCases) {
    EXPECT_EQ(RefusalOf([&] { Lex(each.statement); }), each.tokens) << each.statement;
  }
}

TEST(Lexer, KeepsThePlaceOfEachToken) {
  const std::string statement = "a = 'bc'";
  const std::vector<Token> tokens = Lex(statement);
  EXPECT_EQ(tokens.at(0).offset, 0U);
  EXPECT_EQ(tokens.at(2).offset, 5U) << "where the text between the quotes begins";
  EXPECT_EQ(tokens.at(3).offset, 8U);
}

}  // namespace
}  // namespace ovindra::embedded
