#include "monitor/plot_data.h"

#include <algorithm>
#include <set>

#include "base/seq_file.h"
#include "base/text_helpers.h"

namespace tr7 {

PlotDataRecord PlotData;

void PlotDataRecord::Take(const PlotKey& key, const std::string& name, bool digital) {
  if (std::find(Items.begin(), Items.end(), key) == Items.end()) Items.push_back(key);
  PlotTrace& trace = Entries[key].trace;
  trace.Name = name;
  trace.Digital = digital;
}

void PlotDataRecord::DropOthers() {
  std::erase_if(Entries, [this](const auto& entry) {
    return std::find(Items.begin(), Items.end(), entry.first) == Items.end();
  });
}

void PlotDataRecord::Add(const PlotKey& key, std::int64_t at_ms, std::optional<double> value) {
  const auto found = Entries.find(key);
  if (found == Entries.end()) return;
  auto& samples = found->second.trace.Samples;
  samples.push_back({at_ms, value});
  while (samples.front().AtMs < at_ms - kPlotKeepsMs) samples.pop_front();
  if (FirstMs == 0) FirstMs = BeganMs = at_ms;
  FirstMs = std::max(FirstMs, at_ms - kPlotKeepsMs);
  LastMs = at_ms;
}

std::string PlotAsCsv(const std::vector<const PlotTrace*>& traces, std::int64_t from_ms,
                      const std::string& time_title) {
  constexpr double kMsPerSecond = 1000.0;
  std::set<std::int64_t> times;
  SeqWriter file;
  file.Text(time_title);
  for (const PlotTrace* trace : traces) {
    file.Text(trace->Name);
    for (const PlotSample& sample : trace->Samples) times.insert(sample.AtMs);
  }
  file.EndLine();
  for (const std::int64_t at_ms : times) {
    file.Bare(FormatMm(static_cast<double>(at_ms - from_ms) / kMsPerSecond));
    for (const PlotTrace* trace : traces) {
      const auto value = trace->At(at_ms);
      file.Bare(value ? PlainDecimal(*value) : "");
    }
    file.EndLine();
  }
  return file.Result();
}

}  // namespace tr7
