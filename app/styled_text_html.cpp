#include "app/styled_text_html.h"

QString StyledTextHtml(const StyledText& text) {
    QString html = "<div style=\"white-space: pre-wrap;\">";
    for (const StyledRun& run : text.runs) {
        QString body = QString::fromStdString(run.text).toHtmlEscaped();
        body.replace("\t", "&nbsp;&nbsp;&nbsp;&nbsp;");
        body.replace("\n", "<br/>");
        QString style = QString("font-size: %1pt;").arg(run.size + 1);
        if (run.bold) {
            style += " font-weight: bold;";
        }
        if (run.red) {
            style += " color: rgb(255, 0, 0);";
        }
        QString span = "<span style=\"" + style + "\">" + body + "</span>";
        if (run.centred) {
            span = "<div align=\"center\">" + span + "</div>";
        }
        html += span;
    }
    return html + "</div>";
}
