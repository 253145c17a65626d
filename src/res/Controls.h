// Numbers of dialogs, pictures and controls, for the resource script and the windows alike; a control has one number
// whatever window it is in. Macros, because the resource compiler knows nothing else.
#pragma once

// Icon and pictures. Pictures exist at 100 percent, and with 1000 and 2000 added at 150 and 200 percent.
#define icoFolivant 1
#define picStyles 200  // to 205: one for each listing style
#define picPortrait 210
#define picLandscape 211
#define picSimplex 220
#define picVertical 221
#define picHorizontal 222
#define picFlags 230

// Dialogs
#define dlgMain 100
#define dlgFilter 101
#define dlgFormat 102
#define dlgColumns 103
#define dlgProgress 104
#define dlgOptions 105
#define dlgPageGeneral 106
#define dlgPagePrinter 107
#define dlgPageFont 108
#define dlgPageHeaderFooter 109
#define dlgPageLanguage 110
#define dlgPrinter 111
#define dlgFind 112
#define dlgPageListing 113

// The label of a field
#define LABEL_OF(control) ((control) + 5000)

// Buttons of every dialog; the first two are the system's IDOK and IDCANCEL, so that Enter and Escape press them.
#define cmdOK 1
#define cmdCancel 2
#define cmdHelp 1003
#define cmdBrowse 1004

// frmMain
#define cmdLoad 1010
#define cmdSave 1011
#define cmdOptions 1012
#define cmdFormat 1013
#define cmdFilter 1014
#define fraTo 1015
#define optPrinter 1016
#define optScreen 1017
#define optFile 1018
#define lblFilter 1019
#define lblFormat 1020
#define lblPath 1021
#define Label1 1022
#define Label2 1023
#define Label3 1024

// frmFilter and frmColumns
#define chkName 1030
#define chkSize 1031
#define chkDate 1032
#define chkAttr 1033
#define txtName 1034
#define txtSize 1035
#define cmbSize 1036
#define DTPickMin 1037
#define DTPickMax 1038
#define fraSize 1039
#define fraDate 1040
#define fraAttr 1041
#define chkY 1050     // to 1054: archive, read-only, hidden, system, directory
#define chkX 1055     // to 1059
#define chkN 1060     // to 1064
#define lblAttr 1065  // to 1069
#define optName 1070
#define optExt 1071
#define optDOS 1072
#define optSize 1073
#define optDate 1074
#define optAZ 1075
#define optZA 1076
#define fraOrder 1077
#define lblKb 1078
#define lblYes 1079
#define lblAny 1080
#define lblNo 1081
#define chkDOS 1082
#define chkTime 1083
#define chkTFiles 1084
#define chkTSize 1085
#define chkTTFiles 1086
#define chkTTSize 1087
#define txtLevel 1088
#define lblAllLevels 1089
#define fraFileView 1090
#define fraDirectoryView 1091

// frmFormat
#define optNoSub 1100
#define optSub 1101
#define optSubTree 1102
#define optFull 1103
#define optTree 1104
#define optFind 1105
#define picPreview 1106
#define Command1 1107
#define fraStyle 1108

// frmProgress
#define lblProgress 1120
#define ProgressBar 1121

// frmOptions
#define TabStrip 1130
#define txtViewer 1131
#define txtWidth 1132
#define txtHeight 1133
#define cmbDate 1134
#define chkExit 1135
#define chkFF 1136
#define chkEmptyDirs 1137
#define lblChars 1138
#define lblLines 1139
#define fraInches 1140
#define optInches 1141
#define optMilimeter 1142
#define fraMargins 1143
#define txtLeft 1144
#define txtTop 1145
#define txtRight 1146
#define txtBottom 1147
#define lblUnit 1148  // to 1151: left, top, right, bottom
#define optPort 1152
#define optLand 1153
#define picPort 1154
#define picLand 1155
#define fraOrientation 1156
#define txtCopies 1157
#define cmdPrinter 1158
#define lblPrinter 1159
#define cmdFont 1160
#define lblFont 1161
#define chkFontHF 1162
#define cmdFontHF 1163
#define lblFontHF 1164
#define txtHeader 1165
#define txtFooter 1166
#define lblLegend 1167  // to 1173: %p %l %f %g %d %t %n
#define cmbLang 1174
#define fraPage 1175
#define lblRestart 1176
#define fraLegend 1177
#define fraRecord 1178
#define chkOwner 1179
#define chkLinks 1180
#define lblOpens 1181
#define chkSha256 1182
#define lblReads 1183
#define fraExactCsv 1184
#define chkApostrophe 1185
#define lblApostrophe 1186
#define chkFollowLinks 1187
#define chkNaturalOrder 1188

// frmPrinter
#define cmbPrinter 1190
#define cmbQuality 1191
#define cmbPaperBin 1192
#define fraDuplex 1193
#define optDuplex 1194  // to 1196: simplex, vertical, horizontal
#define picDuplex 1197  // to 1199

// frmFind
#define lstFind 1210
