#include "engine/reference_engine.h"

#include <QDir>
#include <QHash>

#include "core_link/reply.h"
#include "engine/command_text.h"
#include "engine/element_table.h"
#include "engine/sky/bodies.h"
#include "engine/starting_state.h"
#include "engine/time_properties.h"
#include "engine/world.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kEarth = 4;

struct Method {
  QStringView name;
  void (World::*carryOut)(QStringView path, QStringView arguments);
};

// clang-format off
constexpr Method kMethods[]{
  {u"Add",    &World::AddMember},
  {u"Delete", &World::DeleteMember},
  {u"Set",    &World::Set},
  {u"Forget", &World::Forget},
  {u"Init",   &World::Init},
  {u"Save",   &World::SaveMembers},
  {u"Load",   &World::LoadMembers},
};

/// The nodes with data sets, each with a folder of its own.
struct DataSetFolder {
  QStringView basePath;
  QStringView name;
};

constexpr DataSetFolder kDataSetFolders[]{
  {u"Solar.Sun.Corona",                u"corona"},
  {u"Solar.Sun.Sunspot",               u"sunspots"},
  {u"Solar.Sun.TakenImage",            u"sun_images"},
  {u"Solar.Planet.Mars.TakenImage",    u"mars_images"},
  {u"Solar.Planet.Jupiter.TakenImage", u"jupiter_images"},
};
// clang-format on

}  // namespace

class ReferenceEngine::Impl {
 public:
  QString CarryOut(const Statement& statement);
  void Call(QStringView target, QStringView arguments);
  void Redraw();

  World world;
  QHash<QString, QString> replies;
  int locationObject = kEarth;
  int timeSystem = 0;
  std::function<void()> redrawHandler;
  bool redrawing = false;
};

QString ReferenceEngine::Impl::CarryOut(const Statement& statement) {
  switch (statement.kind) {
    case StatementKind::Query:
      return world.Read(statement.target);
    case StatementKind::Assignment:
      world.Assign(statement.target, statement.value);
      break;
    case StatementKind::Call:
      Call(statement.target, statement.value);
      break;
    case StatementKind::Redraw:
      Redraw();
      break;
    case StatementKind::InitStatus:
      world.ClearSlot(statement.target);
      break;
    case StatementKind::MakeStatus:
      world.FillSlot(statement.target);
      break;
    case StatementKind::Unreadable:
      break;
  }
  return {};
}

void ReferenceEngine::Impl::Call(QStringView target, QStringView arguments) {
  for (const Method& method : kMethods) {
    if (!SameWord(LastWord(target), method.name)) continue;
    (world.*method.carryOut)(ParentPath(target), arguments);
  }
}

/// Whoever draws may ask for a redraw again; it is under way already.
void ReferenceEngine::Impl::Redraw() {
  if (!redrawHandler || redrawing) return;
  redrawing = true;
  redrawHandler();
  redrawing = false;
}

ReferenceEngine::ReferenceEngine() : impl_(std::make_unique<Impl>()) {}

ReferenceEngine::~ReferenceEngine() = default;

QString ReferenceEngine::Doit(const QString& command) {
  if (const auto reply = impl_->replies.constFind(command); reply != impl_->replies.constEnd()) {
    return *reply;
  }
  CommandText text(command);
  Statement statement;
  QString reply;
  while (text.Next(&statement)) {
    QString part = impl_->CarryOut(statement);
    reply.isEmpty() ? reply.swap(part) : void(reply += part);
  }
  return reply;
}

QString ReferenceEngine::ObjNumToName(int bodyNumber) const { return BodyPath(bodyNumber); }

int ReferenceEngine::GetLocationObject() const { return impl_->locationObject; }

int ReferenceEngine::GetTimeSys() const { return impl_->timeSystem; }

void ReferenceEngine::Reset() {
  auto handler = std::move(impl_->redrawHandler);
  impl_ = std::make_unique<Impl>();
  impl_->redrawHandler = std::move(handler);
}

QStringList ReferenceEngine::LoadDataSets(const QString& folder) {
  QStringList problems;
  for (const DataSetFolder& node : kDataSetFolders) {
    const QString base = node.basePath.toString();
    Doit(base + ".SavePath = \""_L1 + QDir::toNativeSeparators(folder + u'/' + node.name) + u'"');
    Doit(base + ".load()"_L1);
    const QString problem = Property(base + ".Problem"_L1);
    if (!problem.isEmpty()) problems += problem;
  }
  return problems;
}

void ReferenceEngine::LoadStartingState() { impl_->world.LoadStartingState(); }

void ReferenceEngine::SetProperty(const QString& path, const QString& text) {
  impl_->world.Put(path, text);
}

QString ReferenceEngine::Property(const QString& path) { return impl_->world.Read(path); }

void ReferenceEngine::SetReply(const QString& command, const QString& text) {
  impl_->replies.insert(command, text);
}

bool ReferenceEngine::LoadElements(ElementKind kind, const QString& path) {
  return impl_->world.LoadElements(kind, path);
}

const ElementTable& ReferenceEngine::Elements(ElementKind kind) const {
  return impl_->world.Elements(kind).Table();
}

bool ReferenceEngine::IsObjectShown(ElementKind kind, int object) const {
  const ElementClass& elements = impl_->world.Elements(kind);
  return elements.IsShown(object, impl_->world.LimitsOf(elements));
}

std::vector<int> ReferenceEngine::ShownObjects(ElementKind kind) const {
  const ElementClass& elements = impl_->world.Elements(kind);
  return elements.Shown(impl_->world.LimitsOf(elements));
}

const SmallBodyPlaces& ReferenceEngine::PlacesAt(ElementKind kind, double jdTt,
                                                 const StateVector& observer) const {
  return impl_->world.Elements(kind).PlacesAt(jdTt, observer);
}

const ObjectSwitches& ReferenceEngine::Switches(ElementKind kind) const {
  return impl_->world.Elements(kind).Switches();
}

int ReferenceEngine::OrbitalTypeNumber(ElementKind kind, int object) const {
  return impl_->world.Elements(kind).Types().Orbital(object);
}

bool ReferenceEngine::IsObjectOn(ElementKind kind, int object, QStringView feature) const {
  return reply::ToBool(impl_->world.Elements(kind).Answer(object, feature).value_or(QString()));
}

void ReferenceEngine::SetLocationObject(int bodyNumber) {
  impl_->locationObject = bodyNumber;
  impl_->world.SetObserverBody(bodyNumber >= 0 && bodyNumber < kBodyCount ? bodyNumber : kEarth);
}

void ReferenceEngine::SetTimeSys(int timeSystem) { impl_->timeSystem = timeSystem; }

void ReferenceEngine::SetRedrawHandler(std::function<void()> handler) {
  impl_->redrawHandler = std::move(handler);
}

bool ReferenceEngine::IsOn(QStringView path) const {
  return reply::ToBool(impl_->world.Read(path));
}

double ReferenceEngine::Number(QStringView path, double fallback) const {
  const QString text = impl_->world.Read(path);
  return text.isEmpty() ? fallback : reply::ToDouble(text);
}

double ReferenceEngine::JulianDate() const { return JulianDateOf(impl_->world.Tree()); }

}  // namespace vyn
