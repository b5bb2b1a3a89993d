#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "documents/Document.h"
#include "merge/BlockWriter.h"
#include "merge/OutputFile.h"
#include "merge/ResultColumns.h"
#include "proofs/Proof.h"
#include "requests/DrawnFile.h"
#include "workbench/RowRun.h"

namespace linewright {

/** How rows are drawn. */
struct RowDrawing {
    std::filesystem::path fonts;
    DrawingWish wish{};
    Language language = Language::kEnglish;
};

/** Draws rows; what becomes of them is a door's. */
class DrawingTaker : public RowTaker {
  public:
    explicit DrawingTaker(const RowDrawing& how) : drawing(how), fonts(how.fonts) {}

    std::string Take(RowOut row) final;

  protected:
    /** Takes a row that has a drawing. */
    virtual void TakeDrawn(DrawnBarcode drawn, const RowOut& row) = 0;
    virtual void TakeRefused(const RowOut& /*row*/, const std::string& /*why*/) {}

    RowDrawing drawing;
    Fonts fonts;
};

/** What the file of a row is called. No two rows of a list have the same name. */
std::string RowFileName(std::size_t number, const std::string& data, const std::string& ending);

/** A file for each row. */
class FilesTaker final : public DrawingTaker {
  public:
    /** The ending is a format's, such as "svg". */
    FilesTaker(const RowDrawing& how, std::filesystem::path place, std::string fileEnding);

    void Finish() override {}

  protected:
    void TakeDrawn(DrawnBarcode drawn, const RowOut& row) override;

  private:
    std::filesystem::path folder;
    std::string ending;
};

/** A proof of all rows in one PDF. */
class ProofTaker final : public DrawingTaker {
  public:
    /** Texts are UTF-8. */
    ProofTaker(const RowDrawing& how, const std::string& fileName, const std::string& title,
               std::string proofDate);

    void Finish() override;

  protected:
    void TakeDrawn(DrawnBarcode drawn, const RowOut& row) override;
    void TakeRefused(const RowOut& row, const std::string& why) override;

  private:
    OutputFile file;
    std::string date;
    Proof proof;
};

/** The drawings themselves. */
struct DrawnRow {
    std::size_t number;
    std::string data;
    BarcodeDrawing drawing;
};

/** Keeps all drawings, for who needs them more than once. */
class KeepingTaker final : public DrawingTaker {
  public:
    KeepingTaker(const RowDrawing& how, std::shared_ptr<std::vector<DrawnRow>> target)
        : DrawingTaker(how), rows(std::move(target)) {}

    void Finish() override {}

  protected:
    void TakeDrawn(DrawnBarcode drawn, const RowOut& row) override;

  private:
    std::shared_ptr<std::vector<DrawnRow>> rows;
};

/** Labels on sheets, in a document. */
class LabelTaker final : public RowTaker {
  public:
    /** Fonts of its own, and the document that is made with them. */
    LabelTaker(const std::string& fileName, std::shared_ptr<Fonts> documentFonts,
               std::shared_ptr<Document> labels, Language sentences);

    std::string Take(RowOut row) override;
    void Finish() override;

  private:
    OutputFile file;
    std::shared_ptr<Fonts> fonts;
    std::shared_ptr<Document> document;
    Language language;
};

/** The cells with the columns of results behind them, as the command's batch writes them. */
class CsvTaker final : public RowTaker {
  public:
    /** `names` are the columns', if they have any. */
    CsvTaker(const std::string& fileName, const std::optional<std::vector<std::string>>& names,
             std::size_t width, Language sentences);

    std::string Take(RowOut row) override;
    void Finish() override;

  private:
    /** A row as it stands in the file. */
    void Write(const std::vector<std::string>& cells, bool isHeader);

    Language language;
    OutputFile file;
    BlockWriter writer;
    std::optional<ResultColumns> results;
};

}  // namespace linewright
