-- Shows the report.
studio.Click("RCPE0")
editor.abr.Click("mnuOptionReport")
