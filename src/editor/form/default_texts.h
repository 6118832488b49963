#pragma once

/// The texts that a new inlet starts with, in the project's units. Only the texts are written: nothing
/// that follows from them runs here.
namespace gullymark::editor {

/// The flow data: no discharge, no previous inlets, nothing typed over.
void write_flow_defaults();

/// All that a new inlet shows beside its flow data.
void write_new_inlet_defaults();

/// The inlet data tab.
void write_inlet_data_defaults();

}  // namespace gullymark::editor
