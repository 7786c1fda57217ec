#include "disctool/NewDiscTexts.h"

#include <string_view>

#include "config/Windows1250.h"
#include "platform/Region.h"
#include "startup/modFormShape.h"

namespace orvanta {
namespace {

constexpr std::string_view kParam =
    R"(; Wygląd powłoki: obrazy, położenia w pikselach, kolory, kroje pisma, dźwięki.

[GLOBAL]
MainGfx=main.gif
MenuLevels=4
BackgroundPic=area.gif
BackgroundPicX=95
BackgroundPicY=151
LinePic=line.gif
LinePicX=0
LinePicY=0
BackX=100
BackY=153
BackW=30
BackH=29
UpX=132
UpY=153
UpW=30
UpH=29
Back2X=5
Back2Y=2
Back2W=30
Back2H=29
Up2X=37
Up2Y=2
Up2W=30
Up2H=29
HelpB=help.gif
AboutB=about.gif
S2_Top=373
S2_Start=120
S2_End=372
ExtB=btn\ext
ExtX=552
ExtY=72
Snd1B=btn\snd1
Snd1X=50
Snd1Y=72
Snd2B=btn\snd2
Snd2X=50
Snd2Y=72
HlpB=btn\hlp
HlpX=40
HlpY=260
StartB=btn\start
StartX=104
StartY=464
PauzaB=btn\pauza
PauzaX=190
PauzaY=464
StopB=btn\stop
StopX=276
StopY=464
InfoB=btn\info
InfoX=40
InfoY=290
MinB=btn\min
MinX=520
MinY=72
PokazB=btn\pokaz
PokazX=104
PokazY=464
StartPic=start.gif
UnderPic=under.gif
LeftPic=strip.gif
UpperPic=strip.gif
RightPic1=strip.gif
RightPic2=strip.gif
RightPic3=strip.gif

[HEADLINE]
FontFile=szyld.ttf
Caption=Nowa płyta
Left=122
Top=112
FontName=Batyskaf Szyld
FontBold=True
FontSize=15
Color=16777215

[MENUITEM]
BackgroundB=area.gif
BackgroundX=95
BackgroundY=151
FontFile=szyld.ttf
FontName=Batyskaf Szyld
FontBold=False
FontSize=13
LabelPosX=16
LabelPosY=9
BackStyle=0
BackColor=0
LineSize=1
LineColor=5093631
Line2Size=1
Line2Color=13627503
Line2Sleep=12
BackTxt1X=173
BackTxt1Y=156
BackTxt1Color=16777215
BackTxt2X=78
BackTxt2Y=5
BackTxt2Color=16777215

[SLIDER]
SliderBarB=slider.gif
SliderBarX=440
SliderBarY=40
SliderB=knob.gif
PosX=440
YMin=42
YMax=268
YStep=1

[SHOTSLIDER]
SSliderBarB=slider.gif
SSliderBarX=134
SSliderBarY=2
SSuwakB=knob.gif
PosX=134
YMin=4
YMax=225
YStep=1

[VOICES]
Music=petla.wav
Start=start.wav
Exit1=koniec.wav

[CINEMA]
CBackground=cinema.gif
CMiddX=280
CMiddY=190
CPlayB=btn\cplay
CPlayX=120
CPlayY=380
CStopB=btn\cstop
CStopX=200
CStopY=380
CpauseB=btn\cpause
CPauseX=280
CPauseY=380
CScaleB=btn\cscale
CScaleX=360
CScaleY=380
CFScaleB=btn\cfscale
CFScaleX=360
CFScaleY=380
)";

constexpr std::string_view kMenu = R"(; Drzewo menu: nazwa sekcji to zarazem napis pozycji.

[MAINMENU]
Menu1=Do czytania
Menu2=Do słuchania
Menu3=Do oglądania

[Do czytania]
Menu1=Pierwsze kroki

[Do słuchania]
Menu1=Melodia

[Do oglądania]
Menu1=Film

[Pierwsze kroki]
Execute=%:\czytaj.txt
Note=Plik tekstowy, który otworzy każdy edytor. Tu wpisz, co znajduje się na płycie.
System=Dowolny edytor tekstu.
Shot1=start.gif

[Melodia]
PlayAs=MUSIC
Parameters=%:\Data\Sound\petla.wav
Note=Krótka melodia. Znacznik pod opisem pokazuje, ile już zagrano.
System=Karta dźwiękowa.
Shot1=start.gif

[Film]
PlayAs=MOVIE
Parameters=%:\film.avi
Note=Krótki film, który pokazuje okno kina.
System=Karta dźwiękowa.
Shot1=cinema.gif
)";

std::string Encoded(std::string_view text) {
  std::string lines;
  for (const char c : text) c == '\n' ? lines += "\r\n" : lines += c;
  return ToWindows1250(lines).value_or(std::string());
}

}  // namespace

std::string NewParamIni() { return Encoded(kParam); }
std::string NewMenuIni() { return Encoded(kMenu); }

std::string OutlineSvg() {
  std::string path;
  for (const Rect& part : BuildFormRegion().Rects())
    path += "M" + std::to_string(part.left) + " " + std::to_string(part.top) + "h" +
            std::to_string(part.width) + "v" + std::to_string(part.height) + "h-" +
            std::to_string(part.width) + "z\n";
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"667\" height=\"496\" viewBox=\"0 0 667 496\">\n"
         "<title>Outline of the main window</title>\n<path shape-rendering=\"crispEdges\" fill=\"#808080\" "
         "d=\"\n" +
         path + "\"/>\n</svg>\n";
}

}  // namespace orvanta
