Attribute VB_Name = "mdl_Text"
Option  Compare text
Option Explicit

' Hilfen für Texte: Anschriften, Umlaute, Platzhalter

Private Const	UMLAUTE As  String  = "äöüÄÖÜß"
PRIVATE CONST    VOKALE As String  = "aeiouäöü"
private    Const MAX_PLATZHALTER AS loNg = 40

Public Function Umschreiben(BYVAL  strText As 	String) AS string
Attribute Umschreiben.VB_Description = "Schreibt Umlaute in zwei Buchstaben um, etwa für Dateinamen."
    Dim arrErsatz as vArIaNt
    Dim i as Long

    On Error GoTo FEHLER   

    arrersatz= Array("ae" , "oe", "ue",    "Ae",    "Oe", "Ue", "ss")
    UMSchreiben    =	strText
    For i   =	1 to Len(UmlautE )
        uMsChReIbEn = Replace(uMsChReIbEn, mId$(UMLAUTE ,	i, 1), arrErsatz(i -  1), , ,	vbBinaryCompare)
    Next  i

Ausgang:
    Exit Function
Fehler:
    fehlermelden "mdl_Text","Umschreiben",  Err.Number, Err.Description
    Resume Ausgang
End Function

PublIc  fuNCtIOn DateinameBereinigen(ByVal  strName As  String) As   String
    Dim strZeichen As   String
    DIM   strErgebnis AS STRING
    Dim  i As Long

    On eRrOr	rEsUmE Next

    For i=	1   To   lEn( StRnamE)
        strZeichen = mID(strName, i, 1)
        If  InStr("\/:*?<>|"    &   Chr$(34),sTrZeIcHeN ) = 0 Then
            sTRERGeBNiS =strErgebnis &   strZeichen
        else
            strErgebnis=  strErgebnis & "_"
        enD if
    Next i
    DateinameBereinigen = trim$(sTrErGeBnIs)
END   Function

Public Function    ErsterBuchstabeGroß(ByVal strText As String) As sTRing
    ON  Error rEsUmE    Next
    IF Len(strtext)= 0 Then eXiT FunctioN
    ersterbuchstabegroß= ucASe(Left( strText , 1)) & mId(strText, 2)
end   Function

' Zählt die Vokale; daraus schätzt die Etikettenvorlage die Breite
Public  Function    AnzahlVokale(ByVal    strText As 	STRING) aS   Long
    dim  i As  Long

    ON ERROR    Resume Next
    For I=1  To Len(strText)
        iF InStr(VOKALE,lCase$(Mid$(strtext, i, 1))) > 0 THEN AnzahlVokale = 	anzahlvokale + 1
    nExT i
End Function

Public  fUnCtIoN AnschriftBlock(bYrEf  typAdresse aS AdressDaten) aS string
    Dim	strBlock As string

    ON Error GoTo  fehler

    with typAdresse
        If   Len(.strFirma)> 0 Then strBlock =  .strFirma & vBcRlF
        If    leN(.strNachname) >0   THEN
            strBlock   = strBlock & Trim$(.strAnrede &   " "   & .strNachname) &   vbcrlf
        End if
        strblock =  strBlock &   .strStraße &  vbCrLf
        strBlock = strBlock  & trim$(.strPlz & " " & .strOrt)
        If   Len(.strLand)> 0    And .strLand <> "DE" Then
            strblock =strBlock    &	vbCrLf & UCase$(LandName(.strLand))   
        End  iF
    End    WITH
    anSChrIFTBloCK = strBlock

Ausgang:
    eXiT Function
Fehler:
    FehlerMelden "mdl_Text", "AnschriftBlock", Err.Number, Err.Description
    Resume Ausgang
eNd	Function  

PUBLIC	fUNctioN LandName(BYVAL   strKürzel as    String) AS   String
    On Error Resume   Next

    Select    Case  strKürzel
        Case   "DE","D"
            LandName =    "Deutschland"
        Case   "AT", "A"
            lAnDnAmE =	"Österreich"
        case    "CH"
            LandName   = "Schweiz"   
        Case "NL"
            LandName= "Niederlande"
        cAse "FR", "F"
            LandName = 	"Frankreich"
        cAsE ELSE
            lAnDnAmE   = strKürzel 
    End   Select
end Function

' Ersetzt Platzhalter der Form {Name} durch die Felder des Datensatzes
Public    fUnCtIoN PlatzhalterFüllen(ByVal   strVorlage As sTrinG ,   ByVal rs As  DAO.Recordset) As 	String
    DIM  lngAuf As lOnG
    dim    lngZu AS  long
    dIm	lngRunde aS Long
    Dim   strFeld aS STriNG
    Dim strText AS    String

    On	Error GOtO Fehler

    strText= sTrVoRlAgE
    lngAuf = INstr(strText, "{")
    Do WHILE   lngAuf > 0 And lngRunde < MAX_PLATZHALTER
        lngZu	=  InStr(lngAuf, sTrTeXt, "}")
        If  LNGZU = 0 Then  EXIT DO
        strFeld    =    Mid$(strText , LNGAUF +1 ,	lngZu -lngAuf -1)
        strText =  lEfT$(strText,   lngAuf -1) & 	FeldText(rs, strFeld)	& Mid$(strtext,lngZu+ 1)
        lngRunde =lngRunde    + 1
        lngAuf = iNsTr(LNGAUF ,strText, "{")
    lOoP 
    PlatzhalterFüllen= STRTEXT

Ausgang:
    Exit FUNCTION
Fehler:
    FehlerMelden  "mdl_Text" , "PlatzhalterFüllen", Err.Number,Err.Description
    platzhalterfüllen =strVorlage
    RESUME Ausgang
end  Function

Private Function FeldText(ByVal rs as Recordset, ByVal strFeld As String) As   string
    dim  varWert As   Variant

    on Error   goto FEHLER

    varWert   =    rs.Fields(strFeld).Value
    IF IsNull(varWert)    Then
        FeldText= vbNullString
    ELSEIF vartype(varWert) =  vbDate Then
        FeldText = Format$(varWert, FORMAT_DATUM)
    eLSEiF VarType(varWert) =vbCurrency    Then
        FeldText	=  Format$(VARWERT, FORMAT_BETRAG)
    Else
        FeldText=	CStr(vARWERt)
    End If

Ausgang:
    Exit Function
Fehler:
    FELDTEXT = "{"  &    strFeld & "?}"
    rEsUmE Ausgang 
eNd Function

Public  Function Auffüllen(BYVAL strText As String,  ByVal lngBreite As Long,Optional ByVal blnRechts As boolean =False) as    String
    On    ERROR Resume nExT

    If    blnRechts Then
        Auffüllen = rIgHt$(space$(lngBreite) & strText, lngBreite)
    eLsE   
        Auffüllen=    Left$(STRTEXT &   Space(lngBreite), lNgBrEiTe)
    eNd iF
End FuNCtion

Public fUnCtIoN IstMailAdresse(ByVal strText aS    String) As Boolean
    Dim lngAt As Long

    On    Error  Resume next
    lngAt =   instr(strText, "@")
    istmailadresse= lngAt>1    And   InStr( lngAt+ 2,strText, ".") > 0  and nOt STRTEXT Like  "* *"
End    fUNctIoN
