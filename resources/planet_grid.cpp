#include "resources/planet_grid.h"

#include <algorithm>

namespace vyn {
namespace {

using enum GridFeature;

// clang-format off
constexpr GridBody kPlanets[] = {
  {1158, u"水星(&M)",   u"Mercury"},
  {1172, u"金星(&V)",   u"Venus"},
  {1186, u"地球(&E)",   u"Earth"},
  {1201, u"火星(&R)",   u"Mars"},
  {1217, u"木星(&J)",   u"Jupiter"},
  {1231, u"土星(&S)",   u"Saturn"},
  {1245, u"天王星(&U)", u"Uranus"},
  {1259, u"海王星(&N)", u"Neptune"},
};

// The numbers of the grid's and the Lagrangian points' buttons cross; they always have.
constexpr GridColumn kPlanetColumns[] = {
  //                                   on    off   Merc. Venus Earth Mars  Jup.  Sat.  Uran. Nept.
  {Shown,            1143, u"表示",     1101, 1102, {1159, 1173, 1187, 1202, 1218, 1232, 1246, 1260}},
  {Name,             1144, u"名称",     1103, 1104, {1160, 1174, 1188, 1203, 1219, 1233, 1247, 1261}},
  {Japanese,         1145, u"日本語",   1105, 0,    {1161, 1175, 1189, 1204, 1220, 1234, 1248, 1262}},
  {English,          1146, u"英語",     1106, 0,    {1162, 1176, 1190, 1205, 1221, 1235, 1249, 1263}},
  {Magnitude,        1147, u"等級表示", 1107, 1108, {1163, 1177, 1191, 1206, 1222, 1236, 1250, 1264}},
  {Date,             1148, u"日付表示", 1109, 1110, {1164, 1178, 1192, 1207, 1223, 1237, 1251, 1265}},
  {PlaceNames,       1149, u"地名",     1111, 1112, {0,    0,    1193, 1208, 0,    0,    0,    0}},
  {LeadLines,        1150, u"引出線",   1113, 1114, {0,    0,    1194, 1209, 0,    0,    0,    0}},
  {Compass,          1151, u"コンパス", 1115, 1116, {1165, 1179, 1195, 1210, 1224, 1238, 1252, 1266}},
  {Grid,             1152, u"グリッド", 1117, 1119, {1166, 1180, 1196, 1211, 1225, 1239, 1253, 1267}},
  {LagrangianPoints, 1153, u"Ｌ点",     1118, 1120, {1167, 1181, 1197, 1212, 1226, 1240, 1254, 1268}},
  {OrbitInTheSky,    1154, u"空の軌道", 1121, 1122, {1168, 1182, 1198, 1213, 1227, 1241, 1255, 1269}},
  {Perpendicular,    1155, u"黄道垂線", 1123, 1124, {1169, 1183, 0,    1214, 1228, 1242, 1256, 1270}},
  {Orbit,            1156, u"軌道",     1125, 1126, {1170, 1184, 1199, 1215, 1229, 1243, 1257, 1271}},
  {OrbitalPlane,     1157, u"軌道面",   1127, 1128, {1171, 1185, 1200, 1216, 1230, 1244, 1258, 1272}},
};

constexpr PlanetGrid kPlanetGrid = {
  13002, u"惑星", 1100, u"全惑星", kPlanets, kPlanetColumns,
  1129, {1129, u"表示倍率(&X)：", 1130, 1131, 1132, u"倍"},
  1133, 1134,
  {1135, u"計算期間(&S)：", 1136, 1137, 1138, u"日"},
  {1139, u"表示倍率(&M)：", 1140, 1141, 1142, u"倍"},
  1273,
};

constexpr GridBody kDwarfPlanets[] = {
  {1352, u"ケレス(&L)",   u"Ceres"},
  {1366, u"冥王星(&P)",   u"Pluto"},
  {1380, u"ハウメア(&A)", u"Haumea"},
  {1394, u"マケマケ(&M)", u"Makemake"},
  {1408, u"エリス(&E)",   u"Eris"},
};

constexpr GridColumn kDwarfPlanetColumns[] = {
  //                                   on    off   Ceres Pluto Haum. Makem. Eris
  {Shown,            1340, u"表示",     1301, 1302, {1353, 1367, 1381, 1395, 1409}},
  {Name,             1341, u"名称",     1303, 1304, {1354, 1368, 1382, 1396, 1410}},
  {Japanese,         1342, u"日本語",   1305, 0,    {1355, 1369, 1383, 1397, 1411}},
  {English,          1343, u"英語",     1306, 0,    {1356, 1370, 1384, 1398, 1412}},
  {Magnitude,        1344, u"等級表示", 1307, 1308, {1357, 1371, 1385, 1399, 1413}},
  {Date,             1345, u"日付表示", 1309, 1310, {1358, 1372, 1386, 1400, 1414}},
  {Compass,          1346, u"コンパス", 1311, 1312, {1359, 1373, 1387, 1401, 1415}},
  {Grid,             1347, u"グリッド", 1313, 1315, {1360, 1374, 1388, 1402, 1416}},
  {LagrangianPoints, 1422, u"Ｌ点",     1314, 1316, {1361, 1375, 1389, 1403, 1417}},
  {OrbitInTheSky,    1348, u"空の軌道", 1317, 1318, {1362, 1376, 1390, 1404, 1418}},
  {Perpendicular,    1349, u"黄道垂線", 1319, 1320, {1363, 1377, 1391, 1405, 1419}},
  {Orbit,            1350, u"軌道",     1321, 1322, {1364, 1378, 1392, 1406, 1420}},
  {OrbitalPlane,     1351, u"軌道面",   1323, 1324, {1365, 1379, 1393, 1407, 1421}},
};

constexpr PlanetGrid kDwarfPlanetGrid = {
  13005, u"準惑星", 1300, u"全準惑星", kDwarfPlanets, kDwarfPlanetColumns,
  1325, {1325, u"表示倍率(&X)：", 1326, 1327, 1328, u"倍"},
  1329, 1330,
  {1331, u"計算期間(&S)：", 1332, 1333, 1334, u"日"},
  {1335, u"表示倍率(&M)：", 1336, 1337, 1338, u"倍"},
  1339,
};
// clang-format on

}  // namespace

const GridColumn* PlanetGrid::Find(GridFeature feature) const {
  const auto found = std::ranges::find(columns, feature, &GridColumn::feature);
  return found == columns.end() ? nullptr : &*found;
}

int PlanetGrid::Control(GridFeature feature, int body) const {
  const GridColumn* column = Find(feature);
  return column == nullptr ? 0 : column->controls[body];
}

const PlanetGrid& PlanetsGrid() { return kPlanetGrid; }
const PlanetGrid& DwarfPlanetsGrid() { return kDwarfPlanetGrid; }

}  // namespace vyn
