// The message numbers, named once. Their texts are in lang/; docs/messages.md says where each is used.
// Numbers that are not named here are unused. A number never changes its meaning: language files depend on it.
#pragma once

namespace folivant {

enum class TextId : int {
  // Main window
  Directory = 0,
  Filter = 1,
  OutputFormat = 2,
  OutputTo = 3,
  Browse = 4,
  FilterButton = 5,
  FormatButton = 6,
  ToPrinter = 7,
  ToFile = 8,
  ToScreen = 9,
  LoadFilters = 10,
  SaveFilters = 11,
  Options = 12,
  Ok = 13,
  Close = 14,
  Help = 15,
  CopyListing = 52,   ///< in the system menu of the window, before its shortcut
  CopyShortcut = 53,  ///< as the keys are called
  FilterFiles = 16,   ///< file type of the filter-file dialogs
  AllFiles = 17,
  TypeText = 18,  ///< file types of the save dialog
  TypeTabDelimited = 19,
  TypeHtml = 20,
  TypeExactCsv = 29,
  TypeJsonLines = 30,
  TypeSha256 = 31,
  UnknownOutputType = 21,
  CommandLineProblem = 22,  ///< first line of a command-line message
  CommandLineHint = 23,     ///< last line of a command-line message

  // Listing styles 0 to 4; 5 and 6 are FindWindowStyle and PathListStyle
  NoSubdirectories = 24,
  IncludeSubdirectories = 25,
  TreeStyle = 26,
  DirectoryView = 27,
  FullPathList = 28,

  // Captions of the entry columns
  NameCaption = 32,
  DosNameCaption = 33,
  DateCaption = 35,

  // Options, further texts
  LanguageLabel = 40,
  RestartNote = 41,  ///< a new language is used from the next start
  Cancel = 42,
  ProgramFiles = 43,  ///< file type of the viewer dialog
  TextPage = 44,
  Placeholders = 45,
  NotANumber = 46,   ///< %1 is the name of the field
  Kilobytes = 47,    ///< unit of the size limit
  BrowseTitle = 64,  ///< title of the folder browser

  // Legend of the header and footer placeholders
  LegendPath = 91,
  LegendNamePattern = 92,
  LegendFilter = 93,
  LegendDate = 94,
  LegendTime = 95,
  LegendPage = 96,

  NoPrinter = 100,
  RaiseMargins = 101,     ///< second line of the margin question
  MarginsTooSmall = 102,  ///< first line of the margin question
  Quality = 105,
  PaperBin = 106,
  Duplex = 107,
  Simplex = 108,
  DuplexVertical = 109,
  DuplexHorizontal = 110,

  Scanning = 111,
  CancelQuestion = 112,
  File = 113,   ///< "file", after a count of 1
  Files = 114,  ///< "files", after any other count

  // Captions of the directory view, and the words of the closing sentences
  DirectoryCaption = 115,  ///< nine characters in English: the text writer's padding assumes it
  FilesCaption = 116,
  DirectorySizeCaption = 117,
  TotalFilesCaption = 118,
  TotalSizeCaption = 119,
  JoiningWord = 120,  ///< follows the file word without a blank: ","
  DirectoryWord = 121,
  DirectoriesWord = 122,
  FreeOf = 123,  ///< between the free and the total size of a volume
  NoLabel = 124,

  AttributesCaption = 125,
  DirectoryHeading = 126,   ///< before the path in a directory's heading
  DirectorySizeText = 127,  ///< stands for the size of a directory
  UnitBytes = 128,
  UnitKilobytes = 129,
  UnitMegabytes = 130,
  UnitGigabytes = 131,
  UnitTerabytes = 132,
  SizeCaption = 134,
  FindWindowStyle = 135,
  SelectFindWindow = 136,
  FolderCaption = 137,
  NoFindWindow = 138,
  LegendLabel = 139,
  PathListStyle = 144,

  // Errors: 160 to 199. In them %1 is the file, setting or window, %2 the system's text, %3 its number.
  CannotCreateFile = 160,
  CannotReadFile = 161,
  CannotWriteFile = 162,
  CannotUseClipboard = 163,  ///< without %1
  BadSetting = 164,          ///< %1 store or file, %2 key, %3 value
  CannotWriteSetting = 165,
  CannotPrint = 166,
  CannotStartProgram = 167,
  CannotReadWindow = 168,
  OverwriteFirstLine = 169,  ///< "The file"
  OverwriteLastLine = 170,   ///< "already exists. Do you want to overwrite it?"
  MarginsLeaveNoRoom = 187,  ///< %1 the four margins
  FontDoesNotFit = 188,      ///< %1 font and size
  OutputFileMissing = 189,   ///< in a run that may not ask
  SeveralFindWindows = 190,  ///< the same
  ValidValues = 180,         ///< follows BadSetting; %1 the lowest and %2 the highest value
  NumberOutOfRange = 181,    ///< %1 the name of the field, %2 the lowest and %3 the highest number
  NoPrinterName = 182,       ///< stands for the name of the printer where there is none
  NoPrinterChosen = 183,     ///< there are printers, but none is chosen and none is the default
  UnexpectedError = 184,     ///< a mistake of the program; whatever was done is not complete
  OutOfMemory = 185,
  CannotOpenWindow = 186,  ///< a window of the program itself; without %1
  NoPathInList = 171,
  FileTooLarge = 172,     ///< %2 is the limit
  BadSettings = 173,      ///< before a list of "key=value"; %1 store or file
  MoreBadSettings = 174,  ///< at the end of a long list; %1 how many more there are
  LoadDefaults = 175,     ///< a question; %1 the file

  // Titles of windows
  FilterTitle = 200,
  FormatTitle = 201,
  ColumnsTitle = 202,
  ProgressTitle = 203,
  OptionsTitle = 204,
  PrinterTitle = 205,
  FindTitle = 206,

  // Filter
  FilterByName = 210,
  FilterBySize = 211,
  FilterByDate = 212,
  FilterByAttributes = 213,
  AtLeast = 214,
  AtMost = 215,
  Between = 216,
  And = 217,
  AttributeArchive = 218,
  AttributeReadOnly = 219,
  AttributeHidden = 220,
  AttributeSystem = 221,
  AttributeDirectory = 222,
  MustHave = 223,  ///< heads of the three attribute columns
  DoNotCare = 224,
  MustNotHave = 225,
  OrderByLabel = 226,
  OrderName = 227,
  OrderExtension = 228,  ///< "Extention" in English: the spelling that users know it by
  OrderDosName = 229,
  OrderSize = 230,
  OrderDate = 231,
  Ascending = 232,
  Descending = 233,

  // Format and columns
  Columns = 234,
  Style = 235,
  FileView = 240,
  DirectoryViewFrame = 241,
  ColumnName = 242,
  ColumnDosName = 243,
  ColumnSize = 244,
  ColumnDate = 245,
  ColumnAttributes = 246,
  ColumnFiles = 247,
  ColumnDirectorySize = 248,
  ColumnTotalFiles = 249,
  ColumnTotalSize = 250,
  MaxLevel = 251,
  AllLevels = 252,

  // Options: captions of the pages, then their controls
  PageGeneral = 255,
  PagePrinter = 256,
  PageFont = 257,
  PageHeaderFooter = 258,
  PageLanguage = 259,
  PageListing = 34,
  Viewer = 260,
  Width = 261,
  Characters = 262,
  Height = 263,
  Lines = 264,
  DateFormat = 265,
  ExitAfterPrinting = 266,
  FilesBeforeDirs = 267,
  PrintEmptyDirs = 268,
  MarginsUnit = 269,
  Inches = 270,
  Millimeter = 271,
  Margins = 272,
  MarginLeft = 273,
  MarginTop = 274,
  MarginRight = 275,
  MarginBottom = 276,
  UnitInches = 277,
  UnitMillimeter = 278,
  Orientation = 279,
  Portrait = 280,
  Landscape = 281,
  Copies = 282,
  PrinterButton = 283,
  ChooseFont = 284,
  HeaderFooter80 = 285,
  ChooseHeaderFooterFont = 286,
  ListingsFont = 287,
  HeaderFooterFont = 288,
  HeaderLabel = 289,
  FooterLabel = 290,
  FollowLinks = 54,
  NaturalOrder = 55,
  RecordFields = 36,
  RecordOwner = 37,
  RecordLinks = 38,
  RecordOpensFiles = 48,  ///< the price of the two before
  RecordSha256 = 39,
  RecordReadsFiles = 49,   ///< the price of that
  CsvApostrophe = 50,      ///< in a frame with the text TypeExactCsv
  CsvApostropheNote = 51,  ///< the price of that

  // Printer
  QualityDraft = 291,
  QualityLow = 292,
  QualityMedium = 293,
  QualityHigh = 294,
  BinUpper = 295,
  BinLower = 296,
  BinMiddle = 297,
  BinManual = 298,
  PrinterLabel = 299,  ///< before the list of printers
};

}  // namespace folivant
