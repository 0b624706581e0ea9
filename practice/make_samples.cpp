// Writes the sample measurement files: CGATS.17 text, CxF/X-3, CSV and XML, always the same bytes.
//   make_samples FOLDER

#include <cstdio>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <sstream>

#include "practice/PatchColour.h"

struct Sheet {
  std::string description, instrument, serial, condition, date, time;
};

static std::string fixed(double value, int digits) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(digits) << value;
  return text.str();
}

static std::string inkColumns(const Ink& ink, char separator) {
  return fixed(ink.c, 1) + separator + fixed(ink.m, 1) + separator + fixed(ink.y, 1) + separator + fixed(ink.k, 1);
}

static std::string labColumns(const Lab& lab, char separator) {
  return fixed(lab.l, 2) + separator + fixed(lab.a, 2) + separator + fixed(lab.b, 2);
}

static std::string spectralColumns(const Spectrum& spectrum, char separator) {
  std::string text;
  for (const double value : spectrum) text += separator + fixed(value, 4);
  return text;
}

// CGATS.17: keywords, the format of a set, the sets. Lines end as instruments write them, in CR LF.
static std::string cgats(const std::string& kind, const Sheet& sheet, const std::vector<Patch>& patches,
                         bool spectral) {
  std::ostringstream out;
  out << kind << "\n"
      << "ORIGINATOR\t\"Practice instrument\"\n"
      << "DESCRIPTOR\t\"" << sheet.description << "\"\n"
      << "CREATED\t\"" << sheet.date << "\"\n"
      << "INSTRUMENTATION\t\"" << sheet.instrument << "\"\n"
      << "SERIAL\t\"" << sheet.serial << "\"\n"
      << "MEASUREMENT_SOURCE\t\"Illumination=D50 ObserverAngle=2degree WhiteBase=Absolute Filter=M1\"\n"
      << "PRINT_CONDITIONS\t\"" << sheet.condition << "\"\n";
  std::string fields = "SAMPLE_ID\tSAMPLE_NAME\tCMYK_C\tCMYK_M\tCMYK_Y\tCMYK_K\tLAB_L\tLAB_A\tLAB_B";
  if (spectral)
    for (int band = 0; band < Bands; ++band) fields += "\tSPECTRAL_NM" + std::to_string(FirstBand + band * BandStep);
  out << "NUMBER_OF_FIELDS\t" << 9 + (spectral ? Bands : 0) << "\n"
      << "BEGIN_DATA_FORMAT\n"
      << fields << "\nEND_DATA_FORMAT\n"
      << "NUMBER_OF_SETS\t" << patches.size() << "\nBEGIN_DATA\n";
  int id = 0;
  for (const Patch& patch : patches) {
    out << ++id << '\t' << patch.name << '\t' << inkColumns(patch.ink, '\t') << '\t' << labColumns(patch.lab, '\t');
    if (spectral) out << spectralColumns(patch.spectrum, '\t');
    out << "\n";
  }
  out << "END_DATA\n";
  std::string text = out.str(), lines;
  for (const char c : text) lines += c == '\n' ? "\r\n" : std::string(1, c);
  return lines;
}

static void cxfObject(std::ostream& out, const Sheet& sheet, const Patch& patch, int id) {
  out << "      <cc:Object ObjectType=\"Target\" Name=\"" << patch.name << "\" Id=\"o" << id << "\">\n"
      << "        <cc:CreationDate>" << sheet.date << 'T' << sheet.time << "</cc:CreationDate>\n"
      << "        <cc:ColorValues>\n"
      << "          <cc:ReflectanceSpectrum ColorSpecification=\"CS1\" StartWL=\"380\">"
      << spectralColumns(patch.spectrum, ' ').substr(1) << "</cc:ReflectanceSpectrum>\n"
      << "          <cc:ColorCIELab ColorSpecification=\"CS1\"><cc:L>" << fixed(patch.lab.l, 2) << "</cc:L><cc:A>"
      << fixed(patch.lab.a, 2) << "</cc:A><cc:B>" << fixed(patch.lab.b, 2) << "</cc:B></cc:ColorCIELab>\n"
      << "        </cc:ColorValues>\n"
      << "        <cc:DeviceColorValues>\n"
      << "          <cc:ColorCMYK ColorSpecification=\"CS2\"><cc:Cyan>" << fixed(patch.ink.c, 1)
      << "</cc:Cyan><cc:Magenta>" << fixed(patch.ink.m, 1) << "</cc:Magenta><cc:Yellow>" << fixed(patch.ink.y, 1)
      << "</cc:Yellow><cc:Black>" << fixed(patch.ink.k, 1) << "</cc:Black></cc:ColorCMYK>\n"
      << "        </cc:DeviceColorValues>\n"
      << "      </cc:Object>\n";
}

// CxF/X-3 (ISO 17972).
static std::string cxf(const Sheet& sheet, const std::vector<Patch>& patches) {
  std::ostringstream out;
  out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      << "<cc:CxF xmlns:cc=\"http://colorexchangeformat.com/CxF3-core\" "
         "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\">\n"
      << "  <cc:FileInformation>\n    <cc:Creator>Practice instrument</cc:Creator>\n    <cc:CreationDate>" << sheet.date
      << 'T' << sheet.time << "</cc:CreationDate>\n    <cc:Description>" << sheet.description
      << "</cc:Description>\n  </cc:FileInformation>\n  <cc:Resources>\n    <cc:ObjectCollection>\n";
  int id = 0;
  for (const Patch& patch : patches) cxfObject(out, sheet, patch, ++id);
  out << "    </cc:ObjectCollection>\n    <cc:ColorSpecificationCollection>\n"
      << "      <cc:ColorSpecification Id=\"CS1\">\n"
      << "        <cc:TristimulusSpec><cc:Illuminant>D50</cc:Illuminant><cc:Observer>2_Degree</cc:Observer>"
         "<cc:Method>E308_Table5</cc:Method></cc:TristimulusSpec>\n"
      << "        <cc:MeasurementSpec>\n          <cc:MeasurementType>Spectrum_Reflectance</cc:MeasurementType>\n"
      << "          "
         "<cc:GeometryChoice><cc:SingleAngle><cc:SingleAngleConfiguration>Annular</cc:SingleAngleConfiguration>"
         "<cc:IlluminationAngle>45</cc:IlluminationAngle><cc:MeasurementAngle>0</cc:MeasurementAngle></cc:SingleAngle>"
         "</cc:GeometryChoice>\n"
      << "          <cc:WavelengthRange StartWL=\"380\" Increment=\"10\"/>\n"
      << "          <cc:Device><cc:Manufacturer>Practice</cc:Manufacturer><cc:Model>" << sheet.instrument
      << "</cc:Model><cc:SerialNumber>" << sheet.serial << "</cc:SerialNumber></cc:Device>\n"
      << "        </cc:MeasurementSpec>\n      </cc:ColorSpecification>\n"
      << "      <cc:ColorSpecification Id=\"CS2\"/>\n    </cc:ColorSpecificationCollection>\n  "
         "</cc:Resources>\n</cc:CxF>\n";
  return out.str();
}

static std::string csv(const std::vector<Patch>& patches, bool spectral) {
  std::ostringstream out;
  out << "sample;C;M;Y;K;L;a;b";
  for (int band = 0; spectral && band < Bands; ++band) out << ';' << FirstBand + band * BandStep;
  out << "\r\n";
  for (const Patch& patch : patches) {
    out << patch.name << ';' << inkColumns(patch.ink, ';') << ';' << labColumns(patch.lab, ';');
    if (spectral) out << spectralColumns(patch.spectrum, ';');
    out << "\r\n";
  }
  return out.str();
}

static std::string xml(const Sheet& sheet, const std::vector<Patch>& patches) {
  std::ostringstream out;
  out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<measurement date=\"" << sheet.date << 'T' << sheet.time
      << "\" device=\"" << sheet.instrument << "\" serial=\"" << sheet.serial << "\">\n  <condition>" << sheet.condition
      << "</condition>\n";
  for (const Patch& patch : patches)
    out << "  <patch name=\"" << patch.name << "\" c=\"" << fixed(patch.ink.c, 1) << "\" m=\"" << fixed(patch.ink.m, 1)
        << "\" y=\"" << fixed(patch.ink.y, 1) << "\" k=\"" << fixed(patch.ink.k, 1) << "\"><lab l=\""
        << fixed(patch.lab.l, 2) << "\" a=\"" << fixed(patch.lab.a, 2) << "\" b=\"" << fixed(patch.lab.b, 2)
        << "\"/></patch>\n";
  out << "</measurement>\n";
  return out.str();
}

static bool write(const std::string& folder, const std::string& name, const std::string& content) {
  std::ofstream file(folder + "/" + name, std::ios::binary);
  file << content;
  file.close();
  if (!file) std::cerr << "cannot write " << name << "\n";
  return !file.fail();
}

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: make_samples FOLDER\n";
    return 2;
  }
  const std::string folder = argv[1];
  const Sheet merlin{"Control strip, production",      "Scan Table 3", "ST3-551",
                     "Merlin CX 102, coated 115 g/m2", "2024-03-11",   "09:05:07"};
  const Sheet uncoated{"Control strip, uncoated",          "Scan Table 3", "ST3-551",
                       "Merlin CX 102, uncoated 120 g/m2", "2024-03-12",   "14:40:00"};
  const Sheet falkner{"Kontrollstreifen, T\u00fcr 2", "Scan Table 3", "ST3-551",
                      "Falkner 106, Karton 300 g/m2", "2024-03-12",   "06:12:55"};
  const Sheet tiles{"Ceramic tiles, weekly check", "Spectro Twenty", "ST-20417", "", "2024-03-11", "07:00:12"};
  const Sheet chart{"Characterisation chart", "Spectro Twenty", "ST-20417", "", "2024-03-13", "16:20:45"};

  bool good = true;
  good &= write(folder, "MediaWedge_CX102_0231.txt", cgats("CGATS.17", merlin, measure(controlStrip(72), 1), false));
  good &= write(folder, "Solids CX102.txt", cgats("CGATS.17", merlin, measure(controlStrip(21), 2), false));
  good &= write(folder, "Coated & Uncoated 0232.txt", cgats("CGATS.17", uncoated, measure(controlStrip(48), 3), true));
  good &= write(folder, "Falkner_T\u00fcr2_0017.txt", cgats("CGATS.17", falkner, measure(controlStrip(54), 4), true));
  good &= write(folder, "Falkner_0018.txt", cgats("CGATS.17", falkner, measure(controlStrip(42), 5), false));
  good &= write(folder, "IT8_chart_1000.it8", cgats("IT8.7/4", merlin, measure(testChart(1000), 6), true));
  good &= write(folder, "strip_0233.it8", cgats("IT8.7/3", merlin, measure(controlStrip(63), 7), false));
  good &= write(folder, "ST20417_tiles_w11.cxf", cxf(tiles, measure(controlStrip(12), 8)));
  good &= write(folder, "ST20417_chart_350.cxf", cxf(chart, measure(testChart(350), 9)));
  good &= write(folder, "press_run_000231.csv", csv(measure(controlStrip(96), 10), true));
  good &= write(folder, "density_check.csv", csv(measure(controlStrip(42), 11), false));
  good &= write(folder, "makeready_0042.xml", xml(merlin, measure(controlStrip(84), 12)));
  return good ? 0 : 1;
}
