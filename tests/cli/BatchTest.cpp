#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/cli/CommandRunner.h"

namespace linewright {

namespace {

using testing::HasSubstr;

CommandRunner::Result Convert(const std::string& csv, std::vector<std::string> more = {}) {
    more.insert(more.begin(), {"batch", "-"});
    return CommandRunner().Run(more, csv);
}

// Classic Codabar is its data between the preferences' letters, "A" and "D".
TEST(Batch, AddsItsColumns) {
    const auto result = Convert("type,data\nclassic-codabar,12\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out,
              "type,data,barcode,status,message,warning\n"
              "classic-codabar,12,A12D,0,,\n");
    EXPECT_EQ(result.err, "1 row: 1 encoded (0 with warnings), 0 refused\n");
}

// Code 128 B "10": 104 + 17 + 2·16 = 153, check 50, byte 82.
TEST(Batch, RefusesRowsAndGoesOn) {
    const auto result = Convert(
        "type,data\nclassic-codabar,x\neann13,1\nclassic-codabar,12\n,1\n"
        "classic-code128b,10€\n");
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.out,
              "type,data,barcode,status,message,warning\n"
              "classic-codabar,x,,-1,Bad Codabar,\n"
              "eann13,1,,,\"there is no type \"\"eann13\"\"; nearest: ean13, jan13, ean8\",\n"
              "classic-codabar,12,A12D,0,,\n"
              ",1,,,\"there is no type \"\"\"\"; nearest: imb, msi, ean8\",\n"
              "classic-code128b,10€,ˆ10RŠ,0,,\"1 character above U+00FF dropped: \"\"€\"\"\"\n");
    EXPECT_EQ(result.err, "5 rows: 2 encoded (1 with warnings), 3 refused\n");
}

TEST(Batch, PassesEverythingElseThroughByteForByte) {
    const auto result = Convert(
        "\xEF\xBB\xBF\"note\";type;data;\" x\"\r\n"
        "\"a;\"\"b\"\"\r\nc\";classic-codabar;1; y \r\n"
        "\r\n"
        "5\" diskÿ;\"classic-codabar\";\"2\";\"z\"");
    EXPECT_EQ(result.out,
              "\xEF\xBB\xBF\"note\";type;data;\" x\";barcode;status;message;warning\r\n"
              "\"a;\"\"b\"\"\r\nc\";classic-codabar;1; y ;A1D;0;;\r\n"
              "\r\n"
              "5\" diskÿ;\"classic-codabar\";\"2\";\"z\";A2D;0;;");
    EXPECT_EQ(result.err, "2 rows: 2 encoded (0 with warnings), 0 refused\n");
}

TEST(Batch, ReplacesItsColumnsWhereTheyAre) {
    const std::string once = Convert("type,data\nclassic-codabar,1\nclassic-codabar,x\n").out;
    EXPECT_EQ(Convert(once, {"--replace"}).out, once);
    EXPECT_EQ(
        Convert("status,type,barcode,data\nold,classic-codabar,\"o,ld\",1\n", {"--replace"}).out,
        "status,type,barcode,data,message,warning\n0,classic-codabar,A1D,1,,\n");
}

TEST(Batch, KeepsAllFieldsOfRaggedRows) {
    const auto result = Convert(
        "type,data,barcode,note\nclassic-codabar,1\nclassic-codabar,2,,a,b,\"c\"\n", {"--replace"});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.out,
              "type,data,barcode,note,status,message,warning\n"
              "classic-codabar,1,,,,\"the row has 2 fields, the header 4\",\n"
              "classic-codabar,2,,a,,\"the row has 6 fields, the header 4\",,b,\"c\"\n");
}

TEST(Batch, ReadsCheckAndRatio) {
    const auto result = Convert(
        "type,data,check,ratio\ncode39,A,,\ncode39,A,1,3\ncode39,A,yes,3.0\ncode39,A,No,2.5\n"
        "code39,A,maybe,3\ncode39,A,256,3\ncode39,A,0,2.75\ncode39,A,0,\"2,5\"\n");
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(
        result.out,
        "type,data,check,ratio,barcode,status,message,warning\n"
        "code39,A,,,BAEEAEABAEBAEEA,0,,\n"
        "code39,A,1,3,CAIIAIACAIIACAICAIIA,0,,\n"
        "code39,A,yes,3.0,CAIIAIACAIIACAICAIIA,0,,\n"
        "code39,A,No,2.5,XWYYWYWXWYXWYYW,0,,\n"
        "code39,A,maybe,3,,,\"the check \"\"maybe\"\" is not yes, no or a whole number from 0 to "
        "255\",\n"
        "code39,A,256,3,,,\"the check \"\"256\"\" is not yes, no or a whole number from 0 to "
        "255\",\n"
        "code39,A,0,2.75,,,\"the ratio \"\"2.75\"\" is not 2, 2.5 or 3\",\n"
        "code39,A,0,\"2,5\",,,\"the ratio \"\"2,5\"\" is not 2, 2.5 or 3\",\n");
}

TEST(Batch, TakesOptionsInPlaceOfColumns) {
    EXPECT_EQ(Convert("data\nA\n", {"--type", "code39", "--ratio", "3", "--check"}).out,
              "data,barcode,status,message,warning\nA,CAIIAIACAIIACAICAIIA,0,,\n");
    EXPECT_EQ(Convert("my data\n1\n", {"--type", "classic-codabar", "--column", "my data"}).out,
              "my data,barcode,status,message,warning\n1,A1D,0,,\n");
    EXPECT_EQ(Convert("type,data,ratio\nimb,A,2\n", {"--type", "code39", "--ratio", "3"}).out,
              "type,data,ratio,barcode,status,message,warning\nimb,A,2,CAIIAIACAICAIIA,0,,\n");
}

TEST(Batch, KnowsDelimiters) {
    EXPECT_THAT(Convert("type\tdata\nclassic-codabar\t1\n").out, HasSubstr("1\tA1D\t0\t\t\n"));
    EXPECT_THAT(Convert("a,b;type;data\nx,y;classic-codabar;1\n").out, HasSubstr("1;A1D;0;;\n"));
    EXPECT_THAT(Convert("type|data\nclassic-codabar|1\n", {"--delimiter", "|"}).out,
                HasSubstr("1|A1D|0||\n"));
    EXPECT_THAT(Convert("type\tdata\nclassic-codabar\t1\n", {"--delimiter", "tab"}).out,
                HasSubstr("1\tA1D"));
}

TEST(Batch, IsStrictWhenAsked) {
    const auto result = Convert("type,data\nclassic-code128b,10€\n", {"--strict"});
    EXPECT_EQ(result.status, 3);
    EXPECT_THAT(
        result.out,
        HasSubstr(
            "10€,,,\"there is a warning, and warnings are refused\",\"1 character above U+00FF"));
}

TEST(Batch, NotesAColumnOfUpcANumbersForEan13) {
    const auto note = [](const std::string& rows) {
        const std::string err = Convert("type,data\n" + rows).err;
        return err.substr(err.find('\n') + 1);
    };
    EXPECT_EQ(note("ean13,036000291452\nean13,012345678905\nean13,400638133393\n"),
              "linewright: note: 2 of 3 numbers of 12 digits end with the check digit of UPC-A: as "
              "EAN-13 they get another one behind it; the type upca or --gtin keeps them\n");
    EXPECT_EQ(note("ean13,036000291452\nean13,400638133393\n"), "");
}

TEST(Batch, BringsNumbersToTheFormOfTheirTypeWhenAsked) {
    const CommandRunner command;
    const auto result =
        command.Run({"batch", "-", "--gtin", "--strict"},
                    "type,data\nean13,036000291452\nean13,0036000291452\nean13,036000291453\n");
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(
        result.out,
        "type,data,barcode,status,message,warning\n"
        "ean13,036000291452,U(036000*MTLOPM(,0,,GTIN-12 036000291452 was brought to the type's "
        "form: 0036000291452\n"
        "ean13,0036000291452,U(036000*MTLOPM(,0,,\n"
        "ean13,036000291453,,,\"the check digit of GTIN-12 036000291453 is 3, and should be "
        "2\",\n");
    EXPECT_EQ(result.err, "3 rows: 2 encoded (0 with warnings), 1 refused\n");
}

TEST(Batch, SaysWhatIsWrongWithAFile) {
    const std::vector<std::pair<std::string, std::string>> files{
        {"", "linewright: -: there is no header row\n"},
        {"\n\n", "linewright: -: there is no header row\n"},
        {"type,number\n",
         "linewright: -: there is no column \"data\"; the columns are \"type\", "
         "\"number\"; --column names the one that holds the data\n"},
        {"data\n",
         "linewright: -: there is no column \"type\"; the columns are \"data\"; --type "
         "names one type for all rows\n"},
        {"type,data,data\n", "linewright: -: the column \"data\" stands twice in the header\n"},
        {"\"type,data\nx,y\n",
         "linewright: -: a quoted field of the row in line 1 is never closed\n"},
        {"type,data\xE9\n",
         "linewright: -: line 1: byte 10, 0xE9, is not UTF-8; --encoding says what the file is in, "
         "such as --encoding windows-1252\n"},
        {"type,data,status\n",
         "linewright: -: the file has a column \"status\" already, and a result has that name; "
         "--prefix P and --columns status=NAME give it another one, --replace writes over the "
         "column\n"},
    };
    for (const auto& [csv, message] : files) {
        const auto result = Convert(csv);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, message);
    }
    EXPECT_EQ(Convert("type,barcode\n", {"--column", "barcode", "--replace"}).err,
              "linewright: -: the column \"barcode\" receives results and cannot hold the data\n");
}

TEST(Batch, LetsOutTheRowsBeforeOneThatIsBroken) {
    const std::vector<std::pair<std::string, std::string>> rows{
        {"classic-codabar,\"2\n", "a quoted field of the row in line 3 is never closed\n"},
        {"classic-codabar,2\xE9\n",
         "line 3: byte 18, 0xE9, is not UTF-8; --encoding says what the file is in, such as "
         "--encoding windows-1252\n"},
    };
    for (const auto& [row, message] : rows) {
        const auto result = Convert("type,data\nclassic-codabar,1\n" + row);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.out,
                  "type,data,barcode,status,message,warning\nclassic-codabar,1,A1D,0,,\n");
        EXPECT_EQ(result.err, "linewright: -: " + message);
    }
}

TEST(Batch, LeavesColumnsOfTheFileAlone) {
    const std::string csv = "type,barcode,status\nclassic-codabar,1,mine\n";
    EXPECT_EQ(Convert(csv, {"--column", "barcode", "--prefix", "x "}).out,
              "type,barcode,status,x barcode,x status,x message,x warning\n"
              "classic-codabar,1,mine,A1D,0,,\n");
    EXPECT_EQ(Convert(csv, {"--column", "barcode", "--columns", "barcode=b,status=\"s"}).out,
              "type,barcode,status,b,\"\"\"s\",message,warning\nclassic-codabar,1,mine,A1D,0,,\n");
    EXPECT_EQ(Convert("type,data\n", {"--columns", "barcode=status"}).err,
              "linewright: -: two columns of results would be named \"status\"\n");
}

TEST(Batch, AddsWhatADataMergeWants) {
    EXPECT_EQ(Convert("data\n4006381333931\n", {"--type", "ean13", "--add", "text,font,size"}).out,
              "data,barcode,status,message,warning,text,font,size\n"
              "4006381333931,Y(0A63IB*NNNTNL(,0,,,4006381333931,Linewright EAN UPC,119.7354\n");
    // 1 mm is 72/25.4 points, and a module an em's 128th.
    EXPECT_EQ(Convert("data\n4006381333931\n", {"--type", "ean13", "--add", "size", "--x-dimension",
                                                "0.254mm", "--drop-input"})
                  .out,
              "barcode,status,message,warning,size\nY(0A63IB*NNNTNL(,0,,,92.16\n");
    EXPECT_EQ(Convert("data\nx\n", {"--type", "ean13", "--add", "font", "--drop-input"}).out,
              "barcode,status,message,warning,font\n,-6301,Only the digits 0 to 9,,\n");
}

TEST(Batch, NamesColumnsByNumbersWithoutAHeader) {
    EXPECT_EQ(Convert("1,classic-codabar\n\n2,classic-codabar",
                      {"--no-header", "--column", "1", "--type-column", "2"})
                  .out,
              "1,classic-codabar,A1D,0,,\n\n2,classic-codabar,A2D,0,,");
    EXPECT_EQ(Convert("1\n", {"--no-header", "--type", "msi"}).err,
              "linewright: -: there is no column \"data\"; the columns are \"1\"; --column names "
              "the one that holds the data\n");
    EXPECT_EQ(Convert("", {"--no-header", "--type", "msi"}).err,
              "linewright: -: there is no row\n");
}

TEST(Batch, TellsRefusedRows) {
    const CommandRunner command;
    const std::string in = command.Write("in.csv",
                                         "type,data\nclassic-codabar,x\nclassic-codabar,\"y\n\"\n"
                                         "ean13,x\nclassic-codabar,1\n");
    const std::vector<std::string> run{"batch",     in,
                                       "-o",        command.Place("out.csv"),
                                       "--rejects", command.Place("rejects.csv"),
                                       "--summary", command.Place("summary.json")};
    EXPECT_EQ(command.Run(run).status, 3);
    EXPECT_EQ(command.Read("rejects.csv"),
              "type,data,line,reason\nclassic-codabar,x,2,Bad Codabar\n"
              "classic-codabar,\"y\n\",3,Bad Codabar\nean13,x,5,Only the digits 0 to 9\n");
    const std::string summary = command.Read("summary.json");
    EXPECT_THAT(summary, HasSubstr("\"rows\": 4,\n  \"encoded\": 1,\n  \"warnings\": 0,\n  "
                                   "\"refused\": 3,"));
    EXPECT_THAT(summary, HasSubstr("\"reason\": \"Bad Codabar\",\n      \"rows\": 2"));

    std::vector<std::string> fine = run;
    fine.emplace_back("--refused-ok");
    EXPECT_EQ(command.Run(fine).status, 0);
}

TEST(Batch, WritesEachOutputUnderANameOfItsOwn) {
    const CommandRunner command;
    const std::string in = command.Write("in.csv", "type,data\nmsi,x\n");
    const std::string out = command.Place("out.csv");
    for (const std::string option : {"--rejects", "--summary"}) {
        const auto result = command.Run({"batch", in, "-o", out, option, out});
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.err, "linewright: " + out + ": two outputs cannot have the same name\n");
    }
    EXPECT_EQ(command.Run({"batch", in, "--rejects", "-"}).status, 2);
    EXPECT_THAT(command.Run({"batch", in, "-o", out, "--rejects", "-"}).out,
                HasSubstr("msi,x,2,Only the digits 0 to 9\n"));
}

TEST(Batch, StopsAtSoManyRefusedRows) {
    const CommandRunner command;
    const std::string in =
        command.Write("in.csv", "type,data\nmsi,x\nmsi,1\nmsi,y\nmsi,z\nmsi,2\n");
    const auto whole = command.Run({"batch", in, "-o", command.Place("out.csv"), "--stop-at", "2",
                                    "--rejects", command.Place("rejects.csv")});
    EXPECT_EQ(whole.status, 2);
    EXPECT_EQ(
        whole.err,
        "3 rows: 1 encoded (0 with warnings), 2 refused\n"
        "linewright: stopped at line 4: so many rows are refused; the output is not written\n");
    EXPECT_FALSE(std::filesystem::exists(command.Folder() / "out.csv"));
    EXPECT_THAT(command.Read("rejects.csv"), HasSubstr("msi,y,4,"));
    EXPECT_EQ(command.Run({"batch", in, "--stop-at", "4"}).status, 3);
}

TEST(Batch, OfAHeaderAloneIsAHeader) {
    const auto result = Convert("type,data");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "type,data,barcode,status,message,warning");
}

TEST(Batch, WritesItsFileWholeOrNotAtAll) {
    const CommandRunner command;
    const std::string in = command.Write("in ü.csv", "type,data\nclassic-codabar,1\n");
    const std::string out = command.Place("out ü.csv");
    EXPECT_EQ(command.Run({"batch", in, "-o", out}).status, 0);
    const std::string expected =
        "type,data,barcode,status,message,warning\nclassic-codabar,1,A1D,0,,\n";
    EXPECT_EQ(command.Read("out ü.csv"), expected);

    const std::string broken = command.Write("broken.csv", "type,data\nclassic-codabar,\"1\n");
    EXPECT_EQ(command.Run({"batch", broken, "-o", out}).status, 2);
    EXPECT_EQ(command.Read("out ü.csv"), expected);

    EXPECT_EQ(command.Run({"batch", in, "-o", in}).status, 0) << "its own input";
    EXPECT_EQ(command.Read("in ü.csv"), expected);

    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(command.Folder())) {
        files += entry.is_regular_file() ? 1 : 0;
    }
    EXPECT_EQ(files, 3) << "nothing is left over";
}

TEST(Batch, NamesFilesItCannotUse) {
    const CommandRunner command;
    const std::string in = command.Write("in.csv", "type,data\nclassic-codabar,1\n");
    const auto missing = command.Run({"batch", command.Place("missing.csv")});
    EXPECT_EQ(missing.status, 2);
    EXPECT_EQ(missing.err, "linewright: " + command.Place("missing.csv") +
                               ": there is no such file, or it cannot be read\n");
    EXPECT_EQ(command.Run({"batch", command.Place("config")}).status, 2) << "a folder";
    const auto nowhere = command.Run({"batch", in, "-o", command.Place("no/such/out.csv")});
    EXPECT_EQ(nowhere.status, 2);
    EXPECT_THAT(nowhere.err, HasSubstr("out.csv"));
    EXPECT_EQ(command.Run({"batch", in, "-o", command.Place("config")}).status, 2) << "a folder";
}

}  // namespace

}  // namespace linewright
