// The parts of a workbook of one sheet that are the same in every one.
#pragma once

#include <string_view>

namespace belvani::xlsx {

inline constexpr std::string_view XmlBasi = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";

inline constexpr std::string_view Turler =
    R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">)"
    R"(<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>)"
    R"(<Default Extension="xml" ContentType="application/xml"/><Override PartName="/xl/workbook.xml" )"
    R"(ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml"/>)"
    R"(<Override PartName="/xl/styles.xml" )"
    R"(ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.styles+xml"/>)"
    R"(<Override PartName="/xl/worksheets/sheet1.xml" )"
    R"(ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml"/></Types>)";

inline constexpr std::string_view Iliskiler =
    R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships"><Relationship Id="rId1" )"
    R"(Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument" )"
    R"(Target="xl/workbook.xml"/></Relationships>)";

inline constexpr std::string_view KitapIliskileri =
    R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships"><Relationship Id="rId1" )"
    R"(Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/worksheet" )"
    R"(Target="worksheets/sheet1.xml"/><Relationship Id="rId2" )"
    R"(Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/styles" )"
    R"(Target="styles.xml"/></Relationships>)";

// The sheet's name comes between, then SayfaAdindanSonra.
inline constexpr std::string_view KitapBasi =
    R"(<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" )"
    R"(xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships"><bookViews>)"
    R"(<workbookView xWindow="240" yWindow="15" windowWidth="16095" windowHeight="9660"/></bookViews>)"
    R"(<sheets><sheet name=")";
inline constexpr std::string_view SayfaAdindanSonra = R"(" sheetId="1" r:id="rId1"/></sheets>)";

inline constexpr std::string_view SayfaBasi =
    R"(<worksheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main">)";
inline constexpr std::string_view TekSayfaEni = R"(<sheetPr><pageSetUpPr fitToPage="1"/></sheetPr>)";
inline constexpr std::string_view YatayA4 = R"(<pageSetup paperSize="9" fitToHeight="0" orientation="landscape"/>)";
inline constexpr std::string_view Kenarlar =
    R"(<pageMargins left="0.7" right="0.7" top="0.75" bottom="0.75" header="0.3" footer="0.3"/>)";

inline constexpr std::string_view StillerBasi =
    R"(<styleSheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main">)";
// The two fonts (plain, bold), three fills (none, one that has to be there, the grey of heads) and two borders (none,
// below) that the looks of cells are put together from.
inline constexpr std::string_view StilParcalari =
    R"(<fonts count="2"><font><sz val="11"/><name val="Calibri"/><family val="2"/></font>)"
    R"(<font><b/><sz val="11"/><name val="Calibri"/><family val="2"/></font></fonts>)"
    R"(<fills count="3"><fill><patternFill patternType="none"/></fill>)"
    R"(<fill><patternFill patternType="gray125"/></fill><fill><patternFill patternType="solid">)"
    R"(<fgColor rgb="FFE7E9EC"/><bgColor indexed="64"/></patternFill></fill></fills>)"
    R"(<borders count="2"><border><left/><right/><top/><bottom/><diagonal/></border><border><left/><right/><top/>)"
    R"(<bottom style="thin"><color auto="1"/></bottom><diagonal/></border></borders>)"
    R"(<cellStyleXfs count="1"><xf numFmtId="0" fontId="0" fillId="0" borderId="0"/></cellStyleXfs>)";
inline constexpr std::string_view BaslikStili =
    R"( fillId="2" borderId="1" xfId="0" applyFill="1" applyBorder="1" applyAlignment="1">)"
    R"(<alignment vertical="center" wrapText="1"/></xf>)";
inline constexpr std::string_view DuzStil = R"( fillId="0" borderId="0" xfId="0"/>)";
inline constexpr std::string_view StillerSonu =
    R"(<cellStyles count="1"><cellStyle name="Normal" xfId="0" builtinId="0"/></cellStyles></styleSheet>)";

}  // namespace belvani::xlsx
