// The grammar as recursive descent, one procedure for each rule: expressions, queries, statements that change
// rows and definitions stand in a file each. Works on a TokenReader and fails with the server's refusal.
#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "base/database/sql_text.h"
#include "platform/embedded/parser/syntax_tree.h"
#include "platform/embedded/parser/token_reader.h"

namespace ovindra::embedded {

class Grammar {
 public:
  Grammar(std::string_view statement, std::span<const Token> tokens, std::span<const ValuePlace> values)
      : statement_(statement), reader_(tokens), values_(values) {}

  syntax::Batch ReadBatch();

 private:
  // Statements.
  syntax::Statement ReadStatement();
  syntax::Statement ReadCreate();
  syntax::Statement ReadSet();
  syntax::If ReadIf();
  syntax::Insert ReadInsert();
  syntax::Update ReadUpdate();
  syntax::Delete ReadDelete();

  // Definitions.
  syntax::CreateTable ReadCreateTable();
  syntax::AddColumns ReadAlterTable();
  syntax::CreateView ReadCreateView();
  syntax::CreateIndex ReadCreateIndex();
  syntax::Drop ReadDrop();
  void ReadTableElement(std::vector<syntax::ColumnDefinition>& columns,
                        std::vector<syntax::KeyDefinition>& keys);
  void ReadColumnDefinition(std::vector<syntax::ColumnDefinition>& columns,
                            std::vector<syntax::KeyDefinition>& keys);
  bool ReadColumnOption(syntax::ColumnDefinition& column, std::vector<syntax::KeyDefinition>& keys);
  syntax::KeyDefinition ReadKeyHead(syntax::Name constraint);
  void ReadIdentity();
  syntax::TypeName ReadType();
  std::vector<syntax::Name> ReadNameList();
  std::vector<syntax::IndexColumn> ReadIndexColumns();

  // Queries.
  syntax::Query ReadQuery();
  syntax::Select ReadSelect();
  syntax::SelectItem ReadSelectItem();
  syntax::FromList ReadFromList();
  syntax::TableSourcePtr ReadJoinedTable();
  syntax::TableSourcePtr ReadTableSource();
  std::optional<syntax::JoinKind> TakeJoin();
  syntax::Name ReadAlias();
  std::vector<syntax::OrderItem> ReadOrderBy();

  // Expressions.
  syntax::ExpressionPtr ReadExpression() { return ReadOr(); }
  syntax::ExpressionPtr ReadOr();
  syntax::ExpressionPtr ReadAnd();
  syntax::ExpressionPtr ReadNot();
  syntax::ExpressionPtr ReadComparison();
  syntax::ExpressionPtr ReadSum();
  syntax::ExpressionPtr ReadProduct();
  syntax::ExpressionPtr ReadSigned();
  syntax::ExpressionPtr ReadPrimary();
  syntax::ExpressionPtr ReadParenthesized();
  syntax::ExpressionPtr ReadPredicate(syntax::ExpressionPtr value, bool is_not);
  syntax::ExpressionPtr ReadIn(syntax::ExpressionPtr value, bool is_not);
  syntax::ExpressionPtr ReadIsNull(syntax::ExpressionPtr value);
  syntax::ExpressionPtr ReadCase();
  syntax::ExpressionPtr ReadConvert();
  syntax::ExpressionPtr ReadCast();
  syntax::ExpressionPtr ReadCall();
  syntax::ExpressionPtr ReadLiteral();
  syntax::ExpressionPtr ReadColumnName();
  syntax::ExpressionList ReadExpressionList();

  std::optional<std::size_t> ValueOf(const Token& token) const;

  std::string_view statement_;
  TokenReader reader_;
  std::span<const ValuePlace> values_;
};

}  // namespace ovindra::embedded
