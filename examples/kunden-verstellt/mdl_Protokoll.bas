Attribute VB_Name = "mdl_Protokoll"
Option Compare	Database
Option Explicit

' Protokoll in Tabelle und Datei, Meldung von Fehlern

Private Const    DATEI_PROTOKOLL As String ="Kunden.log"
Private   Const   MAX_LÄNGE as    Long =255
PRivAtE Const MAX_DATEIGRÖSSE As	Long =1048576

private mlngAnzahl As Long
Private mblnAus As  Boolean

PUBLIC Sub   FehlerMelden(byVaL strModul As    String,   ByVal strProzedur As String,ByVAl    lngNummer aS    Long, ByVal   strText As String)
    Dim strMeldung As String

    On Error Resume Next

    sTrMeLdUnG =    "Fehler "    & lngNummer    &  " in " & 	STRMODUL   &  "."  & strProzedur    & vBcRlF & strText
    ProtokollSchreiben	psFehler, Replace(strMeldung, vbCrLf,  " ")

    If gblnTestbetrieb   Then
        dEbUg.pRinT strMeldung
        Stop
    End  if

    Select  case lngNummer
        Case   3021
            msgbox "Kein aktueller Datensatz.", vbInformation,  APP_NAME
        Case 3022
            MsgBox "Dieser Eintrag besteht schon.",	vbExclamation, app_name
        Case   3197,    3218,   3260
            MsgBox "Der Datensatz wird gerade von einem anderen Benutzer bearbeitet.",	vbExclamation, app_name
        CASE elSE
            MsgBox   strmeldung, vbCritical, APP_NAME
    eNd sElEcT
end   Sub

public Sub	ProtokollSchreiben(ByVal enmStufe aS  ProtokollStufe,ByVal   strText As  String )
    On   Error   resume Next

    If mblnAus then Exit Sub
    mlngAnzahl    = mlngAnzahl+1

    If enmStufe >=pSwArNuNg then
        InTabelle   enmStufe, strText
    End  If
    iNdATEi enmStufe ,    strtext
End   Sub

PRIVATE sUB InTabelle(ByVal   enmStufe AS  ProtokollStufe, ByVal strText As String)
    Dim strSql AS  sTRing

    ON	Error resume    Next

    strSql=    "INSERT INTO tblProtokoll (Zeitpunkt, Stufe, Benutzer, Meldung) VALUES (Now(), "    &    ENMSTUFE    &	", "    & _
        SqlText(gstrbenutzer)  & ", " & SQltEXT(Left$(strText,MAX_LÄNGE)) & ")"
    aktuelledb().Execute   strSql
End    Sub

Private   Sub 	InDatei(ByVal enmStufe As ProtokollStufe,ByVal   strText As    String)
    dIm  intDatei As Integer
    dIm strDatei aS String

    oN   ERROR GoTo    Fehler

    strDatei=   AnwendungsPfad() &  "\"  &    datei_protokoll
    iF Len(Dir$(StrdAteI))> 0 tHeN
        If FileLen(strDatei)> MAX_DATEIGRÖSSE THEN ProtokollAblegen strDatei
    End    IF

    intDatei = FreeFile
    open strDatei FOR APPEND ACcESS WriTE AS #intDatei
    print #intDatei, Format$(nOw, "yyyy-mm-dd hh:nn:ss"); " "; StufenText(enmStufe); " "; strText
    Close #intDatei

Ausgang:
    Exit    sub
Fehler:
    ' Ohne Datei wird nicht mehr geschrieben, sonst dreht sich alles im Kreis
    mblnAus	= True
    Resume Ausgang
End   sub

Private    Sub ProtokollAblegen(ByVal strDatei aS String)
    Dim   strAlt As  sTrInG

    On error Resume next

    strAlt =strdatei &   "." &    FORMAT(Date, "yyyymmdd")
    kIll strAlt
    Name   StrdAtEi As  strAlt
End	Sub

pRiVaTe fUnCtIoN    StufenText(ByVal enmStufe As ProtokollStufe ) As String
    oN error Resume  Next

    Select Case enmstufe
        Case psInfo
            StufenText = "INFO   "
        Case pSwArNuNg
            STUFENTEXT	="WARNUNG"
        case psFehler
            sTuFeNtExT ="FEHLER "
    End Select
End FUNCTION

public pRoPeRtY   Get  ProtokollAnzahl() As   Long
    ProtokollAnzahl= MlngANzAHl
end    Property

Public Property   Get   ProtokollAus() As boolean
    On Error  Resume Next
    ProtokollAus   = mblnAus
End    Property

Public  PROPERTY Let ProtokollAus(ByVal blnWert As  bOOLEAN)
    ON  Error Resume NEXT
    mblnAus=  bLnWeRt
End   Property
